#pragma once

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// Unsaved work kept apart from the files it belongs to, until it is saved or given up. Each
/// document has a slot, known by its path.
class Autosave {
public:
    /// Work found from an earlier session.
    struct Found {
        QString path; ///< of the document
        std::string content;
    };

    /// `folder` is made when the first work is kept.
    explicit Autosave(QString folder) : m_folder(std::move(folder)) {}

    /// Keeps the present content of a document. Throws FileError.
    void keep(const QString& path, const std::string& content) const;
    /// The work is saved: nothing is left to recover.
    void forget(const QString& path) const;
    /// The coach does not want it: it is put aside, where the last few stay for a change of mind.
    void putAside(const QString& path) const;

    [[nodiscard]] std::optional<std::string> find(const QString& path) const;
    [[nodiscard]] std::vector<Found> all() const;

private:
    [[nodiscard]] QString slot(const QString& path) const;

    QString m_folder;
};

} // namespace kavela::desktop
