#include "desktop/taking/race_exchange.h"

#include "common/alerts.h"
#include "common/error.h"
#include "common/text_file.h"
#include "desktop/course/course_editor.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_files.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/course_dialog.h"
#include "desktop/taking/export_dialog.h"
#include "desktop/taking/results_dialog.h"
#include "splitdata/loader.h"
#include "splittaking/messages.h"
#include "splittaking/training_collection.h"
#include "splittaking/video_names.h"

#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>

#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

using OfficialList = RaceExchange::OfficialList;

/// On any thread.
std::vector<OfficialList> officialLists(const QStringList& files) {
    std::vector<OfficialList> lists;
    for (const QString& file : files) {
        OfficialList& read = lists.emplace_back();
        read.name = QFileInfo(file).fileName();
        try {
            read.list = parseResults(readTextFile(file.toStdString()));
        } catch (const FileError& error) {
            read.fault = error.reason();
        } catch (const DecodeError& error) {
            read.fault = error.what();
        }
    }
    return lists;
}

} // namespace

RaceExchange::RaceExchange(TakingDocument& document, const FilmFiles& files, Workspace& workspace,
                           QWidget& window, std::function<bool()> commit)
    : m_document(document),
      m_files(files),
      m_workspace(workspace),
      m_window(window),
      m_commit(std::move(commit)) {}

void RaceExchange::tell(const std::string& message) {
    m_workspace.showAlert({"", message}, &m_window);
}

void RaceExchange::setUpCourse() {
    CourseDialog dialog(m_document.info(), m_workspace, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_document.editInfo(tr("course"), [&](infodata031& info) { info = dialog.info(); });
}

/// What there is of a drawing is a step of the document while it is still drawn, so that it is kept
/// apart as all unsaved work is. The next one takes its place, and with it goes a drawing that is
/// given up.
void RaceExchange::drawCourse() {
    if (!m_commit())
        return;
    CourseEditor editor(m_document.info(), m_workspace, &m_window);
    QUndoStack& steps = m_document.undoStack();
    int behind = -1; // the place behind that step; none as long as there is none
    const auto takeBack = [&] {
        if (std::exchange(behind, -1) == steps.index())
            steps.undo();
    };
    const auto put = [&](const infodata031& drawn) {
        takeBack();
        m_document.editInfo(tr("drawing of the course"), [&](infodata031& info) {
            info.coursedesign = drawn.coursedesign;
            info.upGates = drawn.upGates;
            info.gates = drawn.gates;
        });
        behind = steps.index();
    };
    QObject::connect(&editor, &CourseEditor::drawn, &editor, [&](const infodata031& drawn) {
        editor.isChanged() ? put(drawn) : takeBack();
    });
    if (editor.exec() == QDialog::Accepted && editor.isChanged())
        put(editor.info());
    else
        takeBack();
}

void RaceExchange::readFilmNames() {
    QString pattern = m_document.filmPattern();
    for (bool isAgreed = false; !isAgreed;) {
        pattern = QInputDialog::getText(
            &m_window, tr("Names of the films"),
            tr("How the films are named, such as \"{any} {name} {category} {phase}\".\n{name}, "
               "{category}, {phase}, {bib}, {number} and {any} stand for what differs."),
            QLineEdit::Normal, pattern, &isAgreed);
        if (!isAgreed)
            return;
        if (const auto fault = faultOfVideoPattern(pattern.toStdString())) {
            tell(*fault);
            isAgreed = false;
        }
    }
    m_document.readFilmNames(pattern);
}

void RaceExchange::importSplitFile() {
    if (!m_commit())
        return;
    const QStringList files =
        m_files.choose(tr("Import split file"), tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        m_document.importSplitFiles(files, &m_window);
}

void RaceExchange::importResults() {
    if (!m_commit())
        return;
    const QStringList files =
        m_files.choose(tr("Import official results"), tr("Lists (*.csv *.txt);;All files (*)"));
    if (files.isEmpty())
        return;
    m_reading.runAwaited([files] { return officialLists(files); },
                         [this](const std::vector<OfficialList>& lists) {
                             for (const OfficialList& list : lists)
                                 importResults(list);
                         },
                         {},
                         {&m_window, tr("Reading %1…").arg(QFileInfo(files.front()).fileName())});
}

/// Nothing is taken before the coach has seen what there is for whom.
void RaceExchange::importResults(const OfficialList& read) {
    const ResultsList& list = read.list;
    if (!read.fault.empty()) {
        tell(read.fault);
        return;
    }
    if (list.results.empty()) {
        QStringList why{tr("There are no results in %1.").arg(read.name)};
        for (const SkippedLine& line : list.skipped)
            why += tr("Line %1: %2").arg(QString::number(line.line), qtText(line.reason));
        tell(why.join('\n').toStdString());
        return;
    }
    const splittakerdata031 race = timesOf(m_document.value());
    ResultsDialog dialog(race.athletes, list, read.name, &m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_document.takeResults(list, dialog.taken());
}

void RaceExchange::exportData() {
    if (!m_commit())
        return;
    if (m_document.runCount() == 0) {
        tell(messages::NothingToExport);
        return;
    }
    ExportDialog dialog(m_workspace, m_document.path(), &m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_document.exportTo(dialog.path(), {dialog.alsoCsv(), dialog.alsoPdf()}, &m_window);
}

/// The films of the folder that carry the name become a file of their own.
void RaceExchange::collectTraining(const QString& athlete) {
    if (!isAthleteName(athlete.toStdString()) ||
        !m_workspace.ask({"", messages::AskToCollect}, tr("Create"), &m_window))
        return;
    const TrainingPlan plan{athlete.toStdString(),
                            m_workspace.preferences().integer("predeterminatedsplits"),
                            m_workspace.clock()()};
    const QString target = m_document.folder() + '/' + TrainingFileName;
    if (QFile::exists(target) &&
        !m_workspace.ask({"", messages::AskToOverwrite}, tr("Overwrite"), &m_window))
        return;
    try {
        const TrainingCollection training =
            kavela::collectTraining(m_document.folder().toStdString(), plan);
        if (saveSplitFile(training.document, target.toStdString(), m_workspace.log()))
            tell(messages::Saved);
        else
            tell("Failed to create file");
    } catch (const FileError& error) {
        tell(error.what());
    }
}

} // namespace kavela::desktop
