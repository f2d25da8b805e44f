#include "desktop/taking/day/watched_films.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int SoonMilliseconds = 200; ///< a program that copies changes a folder several times
/// Cameras put their films into folders within folders; a whole disk is no answer.
constexpr int DepthOfCards = 3;

double steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

WatchedFilms::WatchedFilms(QObject* parent) : QObject(parent) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(SoonMilliseconds);
    m_regular.setInterval(m_pace.lookMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &WatchedFilms::look);
    connect(&m_regular, &QTimer::timeout, this, &WatchedFilms::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &WatchedFilms::lookSoon);
}

WatchedFilms::~WatchedFilms() = default;

void WatchedFilms::setPace(const Pace& pace) {
    m_pace = pace;
    m_regular.setInterval(pace.lookMilliseconds);
    for (WatchedFolder* const folder : {&m_here, &m_card})
        folder->tracker = GrowingFilms(pace.restSeconds);
    ++m_watch; // a look that goes on has another pace
    m_isLooking = false;
}

void WatchedFilms::watch(const QString& here, const QString& card) {
    const bool isOther = here != m_here.folder || card != m_card.folder;
    if (!isOther)
        return;
    ++m_watch;
    m_work.cancel();
    m_isLooking = false;
    m_here = {.folder = here, .tracker = GrowingFilms(m_pace.restSeconds)};
    m_card = {.folder = card, .depth = DepthOfCards, .tracker = GrowingFilms(m_pace.restSeconds)};
    here.isEmpty() ? m_regular.stop() : m_regular.start();
    emit changed();
    if (!here.isEmpty())
        look();
}

void WatchedFilms::watchFolders() {
    QStringList wanted;
    for (const WatchedFolder* const folder : {&m_here, &m_card})
        if (folder->isThere)
            wanted.append(folder->folder);
    const QStringList watched = m_watcher.directories();
    for (const QString& folder : watched)
        if (!wanted.contains(folder))
            m_watcher.removePath(folder);
    for (const QString& folder : wanted)
        if (!watched.contains(folder))
            m_watcher.addPath(folder); // where that cannot be, the regular looks do
}

void WatchedFilms::look() {
    if (m_isLooking || m_here.folder.isEmpty())
        return;
    m_isLooking = true;
    m_renamed.clear();
    using Folders = std::pair<WatchedFolder, WatchedFolder>;
    m_work.run(
        [folders = Folders(m_here, m_card), now = steadySeconds()](const WorkSteps& steps) mutable {
            folders.first.look(now, steps.stopToken());
            folders.second.look(now, steps.stopToken());
            return std::move(folders);
        },
        [this, watch = m_watch](Folders folders) {
            if (watch == m_watch)
                take(std::move(folders.first), std::move(folders.second));
        },
        {.failed = [this, watch = m_watch](const std::exception_ptr&) {
            if (watch == m_watch)
                m_isLooking = false; // a card that was pulled out; the next look says more
        }});
}

void WatchedFilms::take(WatchedFolder here, WatchedFolder card) {
    m_isLooking = false;
    const auto same = [](const WatchedFolder& a, const WatchedFolder& b) {
        return a.isThere == b.isThere &&
               std::ranges::equal(a.files, b.files, [](const FilmFile& one, const FilmFile& two) {
                   return one.path == two.path && one.bytes == two.bytes &&
                          one.isWhole == two.isWhole && one.isBroken == two.isBroken;
               });
    };
    const bool isSame = same(here, m_here) && same(card, m_card);
    m_here = std::move(here);
    m_card = std::move(card);
    for (const auto& [film, now] : std::exchange(m_renamed, {}))
        rename(QString::fromStdString(film), QString::fromStdString(now));
    watchFolders();
    if (!isSame)
        emit changed();
}

void WatchedFilms::rename(const QString& film, const QString& now) {
    const std::string before = film.toStdString();
    const std::string after = now.toStdString();
    if (m_isLooking)
        m_renamed.emplace_back(before, after);
    m_here.tracker.rename(before, after);
    if (auto recording = m_here.recordings.extract(before)) {
        recording.key() = after;
        m_here.recordings.insert(std::move(recording));
    }
    for (FilmFile& file : m_here.files)
        if (file.path == before)
            file.path = after;
}

const RecordedFilm& WatchedFilms::recording(const FilmFile& film, bool isHere) const {
    return (isHere ? m_here : m_card).recordings.at(film.path);
}

int WatchedFilms::growing() const {
    return static_cast<int>(m_here.tracker.growing().size() + m_card.tracker.growing().size());
}

} // namespace kavela::desktop
