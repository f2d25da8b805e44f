#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace kavela::desktop {

/// Where a program keeps unsaved work. The one program of a user has the folder itself; each that
/// runs beside it has a part of its own, reserved as long as it runs: two that edit one file do not
/// write over each other's work. What a part still holds when its program has ended, the next start
/// of the one program takes over.
class AutosavePlace {
public:
    enum class Program { One, Beside };

    AutosavePlace(const QString& folder, Program program);

    [[nodiscard]] const QString& folder() const { return m_folder; }

private:
    void reserve(const QString& folder);

    QString m_folder;
    std::unique_ptr<QLockFile> m_lock; ///< none in the folder itself
};

} // namespace kavela::desktop
