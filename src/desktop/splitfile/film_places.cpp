#include "desktop/splitfile/film_places.h"

#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_state.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// A stick with a season of films holds some thousands of files; a whole disk is no answer.
constexpr int MostFiles = 200000;

/// Paths are no keys of a store of settings, which takes their slashes for groups.
QString keyOf(const QString& splitFile) {
    const QByteArray name = QFileInfo(splitFile).absoluteFilePath().toUtf8();
    return "filmFolders/" +
           QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex());
}

} // namespace

QStringList filmNames(const TakingState& state) {
    QStringList names;
    const auto add = [&](const std::string& film) {
        const QString name = QString::fromStdString(film);
        if (!name.isEmpty() && !names.contains(name))
            names.append(name);
    };
    for (const TakenRun& run : state.runs) {
        std::ranges::for_each(run.record->videoname, add);
        std::ranges::for_each(run.record->fixcameras, add);
    }
    for (const ttdata030& trial : state.cross->timetrials)
        add(trial.videoname);
    for (const rounddata030& heat : state.cross->eliphase)
        add(heat.videoname);
    return names;
}

QString placeOfFilm(const Workspace& workspace, const QString& splitFile, const QString& name) {
    const QString own = QFileInfo(splitFile).absolutePath() + '/' + name;
    if (QFileInfo(own).isFile())
        return own;
    for (const QString& folder : workspace.remembered(keyOf(splitFile)))
        if (const QString elsewhere = folder + '/' + name; QFileInfo(elsewhere).isFile())
            return elsewhere;
    return own;
}

QStringList findFilms(Workspace& workspace, const QString& splitFile, const QString& folder,
                      const QStringList& names) {
    QSet<QString> missing(names.begin(), names.end());
    QStringList folders;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    for (int seen = 0; files.hasNext() && !missing.isEmpty() && seen < MostFiles; ++seen) {
        files.next();
        if (missing.remove(files.fileName()) && !folders.contains(files.fileInfo().absolutePath()))
            folders.append(files.fileInfo().absolutePath());
    }
    const QString key = keyOf(splitFile);
    for (const QString& before : workspace.remembered(key))
        if (!folders.contains(before))
            folders.append(before);
    workspace.remember(key, folders);
    QStringList left;
    for (const QString& name : names)
        if (missing.contains(name))
            left.append(name);
    return left;
}

} // namespace kavela::desktop
