#include "common/error.h"
#include "common/text_file.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/split_files_read.h"
#include "desktop/team/athlete_panel.h"
#include "desktop/team/results_view.h"
#include "desktop/team/takeover/take_over_dialog.h"
#include "desktop/team/team_window.h"

#include <QFileDialog>
#include <QFileInfo>

#include <optional>

/// Taking results over, as the window does it.
namespace kavela::desktop {

namespace {

bool isList(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == "csv" || suffix == "txt";
}

bool isTeamFile(const QString& path) {
    return QFileInfo(path).suffix().toLower() == "kvteam";
}

} // namespace

void TeamWindow::askForResults() {
    takeOverFrom(QFileDialog::getOpenFileNames(
        this, tr("Take results over"), QFileInfo(m_document->path()).path(),
        tr("Split files and result lists (*.kvx *.csv *.txt);;All files (*)")));
}

void TeamWindow::takeFiles(const QStringList& paths) {
    QStringList teams;
    QStringList results;
    for (const QString& path : paths)
        (isTeamFile(path) ? teams : results).append(path);
    if (!teams.isEmpty())
        emit openRequested(teams);
    takeOverFrom(results);
}

void TeamWindow::takeOverFrom(const QStringList& paths) {
    QStringList splitFiles;
    for (const QString& path : paths) {
        if (isList(path))
            takeOverList(path);
        else
            splitFiles.append(path);
    }
    readSplitFiles(m_work, workspace(), splitFiles, this,
                   [this](const std::vector<RecognisedSplitFile>& files) {
                       for (const RecognisedSplitFile& file : files)
                           takeOver(file);
                   });
}

/// The list is one of the coach's own files, and may be anything.
void TeamWindow::takeOverList(const QString& path) {
    const std::string title =
        tr("“%1” cannot be taken over").arg(QFileInfo(path).fileName()).toStdString();
    try {
        ResultsList list = parseResults(readTextFile(path.toStdString()));
        if (list.results.empty()) {
            workspace().showAlert(
                {title, list.skipped.empty()
                            ? tr("There are no results in it.").toStdString()
                            : tr("Line %1: %2")
                                  .arg(list.skipped.front().line)
                                  .arg(QString::fromStdString(list.skipped.front().reason))
                                  .toStdString()},
                this);
            return;
        }
        TakeOverDialog dialog(m_document->value(), std::move(list), m_results->category(),
                              workspace().clock()(), this);
        apply(dialog);
    } catch (const FileError& error) {
        workspace().showAlert({title, error.reason()}, this);
    } catch (const DecodeError& error) {
        workspace().showAlert({title, error.what()}, this);
    }
}

void TeamWindow::takeOver(const RecognisedSplitFile& file) {
    if (!isSplitFile(file, workspace(), this))
        return;
    FoundRace race = foundInSplitFile(file.document);
    if (race.results.empty()) {
        workspace().showAlert({tr("“%1” cannot be taken over")
                                   .arg(qtText(file.path.filename().string()))
                                   .toStdString(),
                               tr("There are no runs in it.").toStdString()},
                              this);
        return;
    }
    TakeOverDialog dialog(m_document->value(), std::move(race), this);
    apply(dialog);
}

void TeamWindow::apply(TakeOverDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::optional<TakenPlace> first;
    m_document->edit(tr("results taken over"), [&](myTeamToSaveStruct& team) {
        first = desktop::takeOver(team, dialog.planned(), dialog.name());
    });
    if (!first)
        return;
    m_athletes->choose(first->athlete);
    m_results->showCategory(first->category);
}

} // namespace kavela::desktop
