#include "desktop/taking/day/watched_folder.h"

#include "splittaking/video_names.h"
#include "video/recording_date.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <cstdint>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostFilms = 5000; ///< a whole disk is no answer

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

void WatchedFolder::look(double now, const std::stop_token& stop) {
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
        if (stop.stop_requested())
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

} // namespace kavela::desktop
