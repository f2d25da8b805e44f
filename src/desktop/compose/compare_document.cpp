#include "desktop/compose/compare_document.h"

#include "common/error.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "compose/job_paths.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QFileInfo>

namespace kavela::desktop {

FileReading CompareDocument::reading(const QString& path, QWidget* over) {
    const std::filesystem::path file = QFileInfo(path).absoluteFilePath().toStdString();
    return readingBy(path, over, tr("It is no comparison of films, or a damaged one: %1"),
                     [file] { return withFullNames(readComposeJob(file), file.parent_path()); });
}

void CompareDocument::startNew(const QString& path, composejob002 job, QWidget* over) {
    start(std::move(job), path, over);
}

void CompareDocument::createNew(const QString& folder, composejob002 job, QWidget* over) {
    QString path = QDir(folder).filePath("Comparison.json");
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QDir(folder).filePath(QString("Comparison %1.json").arg(number));
    startNew(path, std::move(job), over);
}

EditedFile::Content CompareDocument::contentNow() const {
    return [job = shared()] { return encode(*job); };
}

EditedFile::Content CompareDocument::contentFor(const QString& path) const {
    return [job = shared(), folder = QFileInfo(path).absolutePath().toStdString()] {
        return encode(withNamesFrom(*job, folder));
    };
}

bool CompareDocument::recover(const std::string& content) {
    try {
        startFrom(composeJobOf(JsonDocument::fromText(content)));
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

QString CompareDocument::summary() const {
    const std::size_t count = value().films.size();
    return count == 1 ? tr("1 film") : tr("%n films", nullptr, static_cast<int>(count));
}

} // namespace kavela::desktop
