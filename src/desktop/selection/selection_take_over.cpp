#include "desktop/selection/selection_take_over.h"

#include "common/error.h"
#include "common/text_file.h"
#include "desktop/selection/ranking_model.h"
#include "desktop/selection/selection_document.h"
#include "desktop/selection/selection_edits.h"
#include "desktop/selection/take_over_dialog.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/split_files_read.h"
#include "results/messages.h"
#include "results/selection_attach.h"
#include "results/selection_import.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QString listFilter() {
    return SelectionTakeOver::tr("Lists (*.csv *.txt);;All files (*)");
}

} // namespace

SelectionTakeOver::SelectionTakeOver(SelectionDocument& document, RankingModel& ranking,
                                     SelectionEdits& edits, Workspace& workspace, QWidget& window)
    : m_document(document),
      m_ranking(ranking),
      m_edits(edits),
      m_workspace(workspace),
      m_window(window) {}

QString SelectionTakeOver::folder() const {
    return QFileInfo(m_document.path()).path();
}

void SelectionTakeOver::askForAthletes() {
    const QString path =
        QFileDialog::getOpenFileName(&m_window, tr("Import athletes"), folder(), listFilter());
    if (!path.isEmpty())
        importAthletesFrom(path);
}

/// Has a list taken in; what cannot be read of it is told.
void SelectionTakeOver::readList(const QString& path,
                                 const std::function<void(const ListText& list)>& take) {
    try {
        take(readListText(path.toStdString()));
    } catch (const FileError& error) {
        tellUnread(path, error.reason());
    } catch (const DecodeError& error) {
        tellUnread(path, error.fault().message());
    }
}

void SelectionTakeOver::importAthletesFrom(const QString& path) {
    readList(path, [&](const ListText& list) {
        selectionracesStruct_v3 after = m_document.shown();
        const ListImport import = importAthletes(after, list.text);
        if (import.imported > 0)
            m_document.change(tr("athletes imported"), [&](selectionracesStruct_v3& document) {
                document = std::move(after);
            });
        tellImported(import, list.isLatin1);
    });
}

void SelectionTakeOver::tell(const QString& text) {
    m_workspace.showAlert({"", text.toStdString()}, &m_window);
}

/// Many lines are scrolled through: none hides behind a number.
void SelectionTakeOver::tellLines(const QStringList& lines) {
    constexpr qsizetype MostInABox = 12;
    if (lines.size() <= MostInABox)
        return tell(lines.join('\n'));
    QDialog dialog(&m_window);
    dialog.setWindowTitle(tr("Import"));
    auto* text = new QPlainTextEdit(lines.join('\n'));
    text->setReadOnly(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(text);
    column->addWidget(buttons);
    dialog.resize(640, 420);
    dialog.exec();
}

void SelectionTakeOver::tellUnread(const QString& path, const std::string& reason) {
    m_workspace.showAlert(
        {tr("“%1” cannot be read").arg(QFileInfo(path).fileName()).toStdString(), reason},
        &m_window);
}

void SelectionTakeOver::tellImported(const ListImport& import, bool isLatin1) {
    if (import.needsRace) {
        m_workspace.showAlert({messages::Careful, messages::AddARaceFirst}, &m_window);
        return;
    }
    QStringList lines{import.imported == 1 ? tr("One athlete was added.")
                                           : tr("%n athletes were added.", nullptr,
                                                static_cast<int>(import.imported))};
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

void SelectionTakeOver::askForResults(ResultLayout layout, const char* help) {
    const auto race = m_edits.askForRace(tr("Results of which race?"));
    if (!race)
        return;
    const QString path = QFileDialog::getOpenFileName(&m_window, QString(help).replace('\n', "  "),
                                                      folder(), listFilter());
    if (!path.isEmpty())
        importResultsFrom(path, *race, layout);
}

void SelectionTakeOver::importResultsFrom(const QString& path, std::size_t race,
                                          ResultLayout layout) {
    if (m_document.shown().categories.empty())
        return tell(tr("Add a category first."));
    readList(path, [&](const ListText& list) {
        FoundRuns found = foundInList(m_document.shown(), m_ranking.category(), layout, list.text);
        if (list.isLatin1)
            tell(tr("The list is no UTF-8 text and was read as Latin-1: look at the names."));
        lookAndEnter(path, race, std::move(found));
    });
}

void SelectionTakeOver::askForSplitFiles() {
    const auto race = m_edits.askForRace(tr("Results of which race?"));
    if (!race)
        return;
    const QStringList files =
        QFileDialog::getOpenFileNames(&m_window, tr("Split files of the race"), folder(),
                                      tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        attachFiles(*race, files);
}

void SelectionTakeOver::attachFiles(const QStringList& paths) {
    if (const auto race = m_edits.askForRace(tr("Results of which race?")))
        attachFiles(*race, paths);
}

void SelectionTakeOver::attachFiles(std::size_t race, const QStringList& paths) {
    readSplitFiles(m_reading, m_workspace, paths, &m_window,
                   [this, race](std::vector<RecognisedSplitFile> read) {
                       std::vector<splittakerdata031> files;
                       for (RecognisedSplitFile& file : read) {
                           if (!isSplitFile(file, m_workspace, &m_window))
                               return;
                           files.push_back(std::move(file.document));
                       }
                       lookAndEnter(qtText(read.front().path.string()), race,
                                    foundInSplitFiles(m_document.shown(), files));
                   });
}

/// Nothing is entered before it was seen, with what it replaces.
void SelectionTakeOver::lookAndEnter(const QString& path, std::size_t race, FoundRuns found) {
    if (found.runs.empty() && found.refused.empty()) {
        tellUnread(path, tr("There are no results in it.").toStdString());
        return;
    }
    m_ranking.orderAnew();
    SelectionTakeOverDialog dialog(m_document.shown(), race, std::move(found), m_document.bonus(),
                                   &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_document.change(tr("results taken over"), [&](selectionracesStruct_v3& document) {
        (void)enterRuns(document, race, dialog.chosen());
    });
}

} // namespace kavela::desktop
