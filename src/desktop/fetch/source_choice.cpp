#include "desktop/fetch/source_choice.h"

#include "desktop/fetch/fetch_window.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "splittaking/video_names.h"

#include <QDir>
#include <QFileDialog>
#include <QStringList>

namespace kavela::desktop {

namespace {

using fetch::filmsource001;

constexpr const char* FetchSourceKey = "fetch/source";
constexpr const char* TakenNamesKey = "filmNames"; ///< the pattern that split taking reads by

} // namespace

filmsource001 rememberedSource(const Workspace& workspace) {
    const QStringList kept = workspace.remembered(FetchSourceKey);
    filmsource001 source{kept.value(0).toStdString(),
                         kept.value(1).toStdString(),
                         kept.value(2).toStdString(),
                         kept.value(3).toStdString(),
                         {}};
    for (const QString& host : kept.mid(4))
        source.hosts.push_back(host.toStdString());
    if (source.names.empty())
        source.names = workspace.remembered(TakenNamesKey).value(0).toStdString();
    if (source.names.empty())
        source.names = DefaultVideoPattern;
    return source;
}

void rememberSource(Workspace& workspace, const filmsource001& source) {
    QStringList kept{qtText(source.address), qtText(source.bibs), qtText(source.folder),
                     qtText(source.names)};
    for (const std::string& host : source.hosts)
        kept.append(qtText(host));
    workspace.remember(FetchSourceKey, kept);
}

QString askForBibs(QWidget& over, const filmsource001& source) {
    return QFileDialog::getOpenFileName(
        &over, FetchWindow::tr("Start list, results or split file"), qtText(source.bibs),
        FetchWindow::tr("Lists and split files (*.csv *.txt *.tsv *.kvx);;All files (*)"));
}

QString askForFilmFolder(QWidget& over, const filmsource001& source) {
    return QFileDialog::getExistingDirectory(&over, FetchWindow::tr("Folder for the films"),
                                             qtText(source.folder));
}

QString askForSource(QWidget& over, const filmsource001& source) {
    return QFileDialog::getOpenFileName(&over, FetchWindow::tr("Open a source of films"),
                                        qtText(source.folder),
                                        FetchWindow::tr("Sources of films (*.json)"));
}

QString askForSourceTarget(QWidget& over, const filmsource001& source) {
    const QString path =
        QFileDialog::getSaveFileName(&over, FetchWindow::tr("Save the source of films"),
                                     QDir(qtText(source.folder)).filePath("films.json"),
                                     FetchWindow::tr("Sources of films (*.json)"));
    return path.isEmpty() || path.endsWith(".json", Qt::CaseInsensitive) ? path : path + ".json";
}

} // namespace kavela::desktop
