#include "desktop/tracking/track_document.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "desktop/shell/workspace.h"
#include "splittaking/video_names.h"

#include <QFileInfo>

#include <filesystem>

namespace kavela::desktop {

namespace {

namespace fs = std::filesystem;

/// The film that a path is of. Where it got another name with its path, it is still beside it.
fs::path filmOf(const track001& record, const fs::path& file) {
    const fs::path film = (file.parent_path() / record.film).lexically_normal();
    std::error_code fault;
    if (fs::exists(film, fault))
        return film;
    for (const auto& entry : fs::directory_iterator(file.parent_path(), fault))
        if (isVideoFile(entry.path().filename().string()) &&
            trackPathOf(entry.path()).filename() == file.filename())
            return entry.path();
    return film;
}

} // namespace

FileReading TrackDocument::reading(const QString& path, QWidget* over) {
    const fs::path file = QFileInfo(path).absoluteFilePath().toStdString();
    return readingBy(path, over, tr("It is no path on a film, or a damaged one: %1"), [file] {
        track001 record = readTrack(file);
        record.film = filmOf(record, file).string();
        return record;
    });
}

void TrackDocument::startOn(const QString& film, QWidget* over) {
    track001 record;
    record.film = QFileInfo(film).absoluteFilePath().toStdString();
    const std::filesystem::path path = trackPathOf(record.film);
    start(std::move(record), QString::fromStdString(path.string()), over);
}

EditedFile::Content TrackDocument::contentNow() const {
    return [record = shared()] { return encode(*record); };
}

EditedFile::Content TrackDocument::contentFor(const QString& path) const {
    return [record = shared(), folder = QFileInfo(path).absolutePath().toStdString()] {
        track001 written = *record;
        const std::filesystem::path film = written.film;
        if (film.parent_path() == std::filesystem::path(folder))
            written.film = film.filename().string();
        return encode(written);
    };
}

bool TrackDocument::recover(const std::string& content) {
    try {
        const auto record = decodeText<track001>(content);
        static_cast<void>(trackOf(record));
        startFrom(record);
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

QString TrackDocument::summary() const {
    const std::size_t count = value().points.size();
    return count == 1 ? tr("a path of 1 frame") : tr("a path of %1 frames").arg(count);
}

} // namespace kavela::desktop
