#include "common/error.h"
#include "common/text_file.h"
#include "desktop/selection/selection_window.h"
#include "desktop/selection/take_over_dialog.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "results/messages.h"
#include "results/selection_attach.h"
#include "results/selection_import.h"
#include "splitdata/loader.h"

#include <QFileDialog>
#include <QFileInfo>

/// What files bring into a selection: athletes, and results that are looked at first.
namespace kavela::desktop {

void SelectionWindow::importAthletesFrom(const QString& path) {
    try {
        const ListText list = readListText(path.toStdString());
        selectionracesStruct_v3 after = m_document.shown();
        const ListImport import = importAthletes(after, list.text);
        if (import.imported > 0)
            m_document.change(tr("athletes imported"), [&](selectionracesStruct_v3& document) {
                document = std::move(after);
            });
        tellImported(import, list.isLatin1);
    } catch (const FileError& error) {
        tellUnread(path, error.reason());
    } catch (const DecodeError& error) {
        tellUnread(path, error.fault().message());
    }
}

void SelectionWindow::tellUnread(const QString& path, const std::string& reason) {
    workspace().showAlert(
        {tr("“%1” cannot be read").arg(QFileInfo(path).fileName()).toStdString(), reason}, this);
}

void SelectionWindow::tellImported(const ListImport& import, bool isLatin1) {
    if (import.needsRace) {
        workspace().showAlert({messages::Careful, messages::AddARaceFirst}, this);
        return;
    }
    QStringList lines{import.imported == 1 ? tr("One athlete was added.")
                                           : tr("%1 athletes were added.").arg(import.imported)};
    if (isLatin1)
        lines.append(tr("The list is no UTF-8 text and was read as Latin-1: look at the names."));
    for (const NewCategory& category : import.added)
        lines.append((category.isKnown ? tr("Line %1: the category %2 is new in the selection.")
                                       : tr("Line %1: the category %2 is new in the selection, "
                                            "and none that boats are raced in."))
                         .arg(category.line)
                         .arg(qtText(category.label)));
    for (const RefusedLine& line : import.skipped)
        lines.append(tr("Line %1: %2").arg(line.line).arg(qtText(line.reason)));
    tellLines(lines);
}

void SelectionWindow::askForResults(ResultLayout layout, const char* help) {
    const auto race = askForRace(tr("Results of which race?"));
    if (!race)
        return;
    const QString path = QFileDialog::getOpenFileName(this, QString(help).replace('\n', "  "),
                                                      QFileInfo(m_document.path()).path(),
                                                      tr("Lists (*.csv *.txt);;All files (*)"));
    if (!path.isEmpty())
        importResultsFrom(path, *race, layout);
}

void SelectionWindow::importResultsFrom(const QString& path, std::size_t race,
                                        ResultLayout layout) {
    if (m_document.shown().categories.empty()) {
        tell(tr("Add a category first.").toStdString());
        return;
    }
    try {
        const ListText list = readListText(path.toStdString());
        FoundRuns found = foundInList(m_document.shown(), m_model.category(), layout, list.text);
        if (list.isLatin1)
            tell(tr("The list is no UTF-8 text and was read as Latin-1: look at the names.")
                     .toStdString());
        lookAndEnter(path, race, std::move(found));
    } catch (const FileError& error) {
        tellUnread(path, error.reason());
    } catch (const DecodeError& error) {
        tellUnread(path, error.fault().message());
    }
}

void SelectionWindow::askForSplitFiles() {
    const auto race = askForRace(tr("Results of which race?"));
    if (!race)
        return;
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Split files of the race"), QFileInfo(m_document.path()).path(),
        tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        attachFiles(*race, files);
}

/// The split files are read as they are: one of an older release is not rewritten from here.
void SelectionWindow::attachFiles(std::size_t race, const QStringList& paths) {
    std::vector<splittakerdata031> files;
    for (const QString& path : paths) {
        RecognisedSplitFile file =
            recogniseSplitFile(path.toStdString(), workspace().log(), workspace().clock());
        if (!file.version) {
            WorkspaceAlerts alerts(workspace(), this);
            reportIncompatible(file, workspace().log(), alerts);
            return;
        }
        files.push_back(std::move(file.document));
    }
    lookAndEnter(paths.value(0), race, foundInSplitFiles(m_document.shown(), files));
}

/// Nothing is entered before it was seen, with what it replaces.
void SelectionWindow::lookAndEnter(const QString& path, std::size_t race, FoundRuns found) {
    if (found.runs.empty() && found.refused.empty()) {
        tellUnread(path, tr("There are no results in it.").toStdString());
        return;
    }
    m_model.orderAnew();
    SelectionTakeOverDialog dialog(m_document.shown(), race, std::move(found), m_document.bonus(),
                                   this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_document.change(tr("results taken over"), [&](selectionracesStruct_v3& document) {
        (void)enterRuns(document, race, dialog.chosen());
    });
}

} // namespace kavela::desktop
