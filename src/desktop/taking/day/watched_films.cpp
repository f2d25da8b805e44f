#include "desktop/taking/day/watched_films.h"

#include "splittaking/video_names.h"
#include "video/recording_date.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int SoonMilliseconds = 200; ///< a program that copies changes a folder several times
/// Cameras put their films into folders within folders; a whole disk is no answer.
constexpr int DepthOfCards = 3;
constexpr std::size_t MostFilms = 5000;

double steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

void addFilmsIn(const QDir& folder, const QString& within, int depth, QFileInfoList& found,
                QStringList& names) {
    for (const QFileInfo& file : folder.entryInfoList(QDir::Files, QDir::Name)) {
        if (static_cast<std::size_t>(found.size()) >= MostFilms)
            return;
        if (isVideoFile(file.fileName().toStdString())) {
            found.append(file);
            names.append(within + file.fileName());
        }
    }
    if (depth <= 0)
        return;
    for (const QFileInfo& inner :
         folder.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name))
        addFilmsIn(QDir(inner.filePath()), within + inner.fileName() + '/', depth - 1, found,
                   names);
}

RecordedFilm recordedFilm(const FilmRecording& read, const QFileInfo& file) {
    const double written = static_cast<double>(file.lastModified().toMSecsSinceEpoch()) / 1000;
    return {read.began, ReferenceDate{written - SecondsFrom1970To2001}, read.seconds};
}

} // namespace

void WatchedFilms::Folder::look(double now, const WorkSteps& steps) {
    if (folder.isEmpty())
        return;
    isThere = QFileInfo(folder).isDir();
    QFileInfoList found;
    QStringList names;
    if (isThere)
        addFilmsIn(QDir(folder), {}, depth, found, names);
    std::map<std::string, GrowingFilms::Found> sizes;
    std::map<std::string, QFileInfo> infos;
    for (qsizetype i = 0; i < found.size(); ++i) {
        const std::string name = names[i].toStdString();
        sizes[name] = {static_cast<std::uintmax_t>(found[i].size()),
                       found[i].lastModified().toMSecsSinceEpoch()};
        infos[name] = found[i];
    }
    for (const std::string& rested : tracker.look(sizes, now)) {
        if (steps.isCancelled())
            return;
        const auto read = recordingOf(infos[rested].filePath().toStdString());
        tracker.noteRead(rested, read.has_value());
        if (read)
            recordings[rested] = recordedFilm(*read, infos[rested]);
    }
    files.clear();
    for (const auto& [name, size] : sizes)
        files.push_back({name, size.bytes, tracker.isWhole(name), tracker.isBroken(name)});
    std::erase_if(recordings, [&](const auto& each) { return !tracker.isWhole(each.first); });
}

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
    for (Folder* const folder : {&m_here, &m_card})
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
    for (const Folder* const folder : {&m_here, &m_card})
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
    using Folders = std::pair<Folder, Folder>;
    m_work.run(
        [folders = Folders(m_here, m_card), now = steadySeconds()](const WorkSteps& steps) mutable {
            folders.first.look(now, steps);
            folders.second.look(now, steps);
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

void WatchedFilms::take(Folder here, Folder card) {
    m_isLooking = false;
    const auto same = [](const Folder& a, const Folder& b) {
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
