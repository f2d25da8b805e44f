#include "desktop/splitfile/taking_files.h"

#include "common/error.h"
#include "splitdata/loader.h"
#include "splittaking/training_collection.h"
#include "splittaking/video_names.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

namespace kavela::desktop {

namespace {

bool hasRunOf(const std::filesystem::path& splitFile, const std::string& film) {
    try {
        const RecognisedSplitFile read = recogniseSplitDocument(
            JsonDocument::fromFile(splitFile), splitFile, [](std::string_view) {},
            [] { return ReferenceDate{}; });
        return std::ranges::any_of(read.document.athletes, [&](const athletedata031& run) {
            return std::ranges::find(run.videoname, film) != run.videoname.end();
        });
    } catch (const FileError&) {
        return false; // opening it will tell
    } catch (const DecodeError&) {
        return false;
    }
}

} // namespace

QString splitFileIn(const QString& folder) {
    QStringList files = QDir(folder).entryList({"*.kvx"}, QDir::Files, QDir::Time);
    if (files.size() > 1)
        files.removeAll(TrainingFileName);
    return files.isEmpty() ? QString() : QDir(folder).absoluteFilePath(files.front());
}

QString splitFileWith(const QString& film) {
    constexpr qsizetype MostFiles = 24;
    const QFileInfo info(film);
    const std::string name = info.fileName().toStdString();
    const QDir folder = info.absoluteDir();
    for (const QString& file :
         folder.entryList({"*.kvx"}, QDir::Files, QDir::Time).mid(0, MostFiles))
        if (hasRunOf(folder.absoluteFilePath(file).toStdString(), name))
            return folder.absoluteFilePath(file);
    return {};
}

QStringList filmsIn(const QString& folder) {
    QStringList films;
    for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name))
        if (isVideoFile(name.toStdString()))
            films.append(name);
    return films;
}

} // namespace kavela::desktop
