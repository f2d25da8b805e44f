#include "desktop/splitfile/taking_files.h"

#include "splittaking/training_collection.h"
#include "splittaking/video_names.h"

#include <QDir>

namespace kavela::desktop {

QString splitFileIn(const QString& folder) {
    QStringList files = QDir(folder).entryList({"*.kvx"}, QDir::Files, QDir::Time);
    if (files.size() > 1)
        files.removeAll(TrainingFileName);
    return files.isEmpty() ? QString() : QDir(folder).absoluteFilePath(files.front());
}

QStringList filmsIn(const QString& folder) {
    QStringList films;
    for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name))
        if (isVideoFile(name.toStdString()))
            films.append(name);
    return films;
}

} // namespace kavela::desktop
