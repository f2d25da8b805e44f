#include "desktop/shell/autosave_place.h"

#include "desktop/shell/autosave.h"

#include <QDir>

namespace kavela::desktop {

namespace {

constexpr int MostParts = 1000; ///< more programs than a computer runs beside each other

QString autosavePart(const QString& folder, int number) {
    return QStringLiteral("%1/beside %2").arg(folder).arg(number);
}

/// Null where another program has it. The lock of one that is gone is void at once.
std::unique_ptr<QLockFile> lockOf(const QString& part) {
    auto lock = std::make_unique<QLockFile>(part + ".lock");
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

void takeOverParts(const QString& folder) {
    for (const QString& name : QDir(folder).entryList({"beside *"}, QDir::Dirs)) {
        const QString part = folder + '/' + name;
        if (const auto lock = lockOf(part)) {
            Autosave(folder).takeOver(part);
            QDir(folder).rmdir(name);
        }
    }
}

} // namespace

AutosavePlace::AutosavePlace(const QString& folder, Program program) : m_folder(folder) {
    if (program == Program::One)
        takeOverParts(folder);
    else
        reserve(folder);
}

/// What another program left there is not taken up here: it goes to the next start.
void AutosavePlace::reserve(const QString& folder) {
    QDir().mkpath(folder);
    for (int number = 1; number <= MostParts && !m_lock; ++number) {
        m_folder = autosavePart(folder, number);
        if (QDir(m_folder).entryList({"*.work"}, QDir::Files).isEmpty())
            m_lock = lockOf(m_folder);
    }
}

} // namespace kavela::desktop
