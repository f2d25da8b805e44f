#include "desktop/recognition.h"

#include "desktop/shell/file_names.h"
#include "desktop/splitfile/taking_files.h"

#include <QEventLoopLocker>

#include <algorithm>
#include <exception>
#include <utility>

namespace kavela::desktop {

namespace {

/// The split files beside a film are read for its run.
Recognition::File fileOf(const QString& path, HeldDocuments& held) {
    Opening opening = opensAs(path);
    held.hold(path, std::move(opening.document));
    return {path, opening.as, opening.races,
            opening.as == OpensAs::Film ? splitFileWith(path) : QString()};
}

/// What cannot even be looked at is told by the reader of races, as what cannot be read.
Recognition::Found recognised(const QStringList& paths) {
    Recognition::Found found;
    const auto held = std::make_shared<HeldDocuments>();
    for (const QString& path : paths) {
        try {
            found.files.push_back(fileOf(path, *held));
        } catch (const std::exception&) {
            found.files.push_back({path, OpensAs::Race, {}});
        }
    }
    found.held = held;
    return found;
}

} // namespace

void Recognition::recognise(const QStringList& paths, const Told& told) {
    const int number = ++m_last;
    m_running.insert(number, paths);
    m_work.runAwaited(
        [paths] { return recognised(paths); },
        [this, number, told, running = std::make_shared<QEventLoopLocker>()](const Found& found) {
            m_running.remove(number);
            told(found);
        });
}

QStringList Recognition::paths() const {
    QStringList all;
    for (const QStringList& some : m_running)
        all += some;
    return all;
}

bool Recognition::isAt(const QString& path) const {
    return std::ranges::any_of(paths(),
                               [&](const QString& other) { return isSameFile(other, path); });
}

} // namespace kavela::desktop
