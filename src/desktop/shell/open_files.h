#pragma once

#include <QString>

#include <map>

namespace kavela::desktop {

class EditedFile;

/// Which document holds which file. A file is one document, however it is named: links and relative
/// paths lead to the same.
class OpenFiles {
public:
    /// The document holds this path, and no other one any more.
    void hold(const EditedFile& document, const QString& path);
    void release(const EditedFile& document);
    /// Null when no document holds the file.
    [[nodiscard]] const EditedFile* holderOf(const QString& path) const;

private:
    std::map<const EditedFile*, QString> m_paths; ///< canonical
};

} // namespace kavela::desktop
