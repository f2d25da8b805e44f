#include "desktop/taking/taking_window.h"

#include "common/error.h"
#include "common/text_file.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_view.h"
#include "desktop/shell/file_copy.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/course_dialog.h"
#include "desktop/taking/expected_place.h"
#include "desktop/taking/export_dialog.h"
#include "desktop/taking/gate_strip.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/results_dialog.h"
#include "desktop/taking/run_form.h"
#include "splitdata/loader.h"
#include "splittaking/annotations/fixed_cameras.h"
#include "splittaking/annotations/penalty_details.h"
#include "splittaking/messages.h"
#include "splittaking/training_collection.h"
#include "splittaking/video_names.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QTableView>

#include <algorithm>

/// What the keys of split taking do to the run and its document.
namespace kavela::desktop {

namespace {

bool hasTimes(const athletedata031& run) {
    return std::ranges::any_of(run.sectioninfo.times, [](double time) { return time != 0; });
}

/// The frame so many seconds later; the moment itself where the film is not there to tell.
CMTime shifted(const VideoIndex* index, const CMTime& stamp, double seconds) {
    const CMTime moment = later(stamp, seconds);
    const auto frame = index ? index->frameAt(moment) : std::nullopt;
    return frame ? index->stampOf(*frame) : moment;
}

} // namespace

void TakingWindow::refuse(const QString& why) {
    m_views.front()->refuse(why);
}

/// A run whose films were moved says where they were looked for.
void TakingWindow::refuseWithoutFilm() {
    if (m_run < 0 || m_filmsShown.isEmpty())
        tell(messages::NoVideo);
    else
        refuse(
            tr("Nothing can be marked: %1 is not in the folder of the split file. Cameras > Where "
               "are the films now?")
                .arg(QFileInfo(m_filmsShown.front()).fileName()));
}

void TakingWindow::select(std::optional<std::size_t> mark) {
    m_selected = mark;
    if (mark)
        m_notes->clearSelection();
    showMarks();
}

void TakingWindow::stepRun(int step) {
    const int run = m_run + step;
    if (run >= 0 && run < m_document.runCount())
        selectRun(run);
}

void TakingWindow::mark() {
    if (m_notes->takesMarks()) {
        m_notes->mark();
        return;
    }
    if (m_run < 0 || m_deck->cameras() == 0) {
        refuseWithoutFilm();
        return;
    }
    m_deck->whenMeant(
        [this](Stamps stamps) {
            stamps.resize(std::min(stamps.size(), m_deck->cameras()));
            markSplit(std::move(stamps));
        },
        [this](const QString& why) { refuse(why); });
}

void TakingWindow::markSplit(Stamps stamps) {
    RunMarks marks = m_document.marks(m_run);
    if (marks == RunMarks() && hasTimes(m_document.run(m_run)) &&
        !workspace().ask({"", tr("The times of this run were taken without marks on the video. "
                                 "Marking it anew replaces them.")
                                  .toStdString()},
                         tr("Mark anew"), this))
        return;
    const CMTime moment = stamps.front();
    if (const auto refused = markNext(marks, std::move(stamps), m_document.info().totalsplits)) {
        refuseMark(*refused);
        return;
    }
    const std::size_t taken = markAt(marks, moment).value_or(marks.marks.size());
    const bool isStart = taken == 0;
    m_notes->clearSelection();
    m_selected = taken;
    m_document.setMarks(m_run, isStart ? tr("start mark") : tr("split %1").arg(taken), marks);
    m_views.front()->flash(
        isStart ? tr("Start")
                : tr("%1:  %2").arg(taken).arg(shownHundredths(splitTimes(marks).at(taken - 1))));
    m_notes->tell(
        taken < marks.marks.size() && !isStart
            ? tr("Split %1 was put in between two marks. Ctrl+Z takes it out again.").arg(taken)
            : QString());
}

/// The order of the marks is told where the coach looks; what must be decided first, in a box.
void TakingWindow::refuseMark(const Alert& why) {
    if (!why.title.empty()) {
        workspace().showAlert(why, this);
        return;
    }
    refuse(QString::fromStdString(why.text));
    m_notes->tell(QString::fromStdString(why.text));
}

/// A mark goes to another frame, unless it would pass its neighbour.
void TakingWindow::moveTo(std::size_t mark, Stamps stamps) {
    RunMarks marks = m_document.marks(m_run);
    if (const auto refused = refusalToMove(marks, mark, stamps.front())) {
        refuseMark(*refused);
        showMarks(); // where it was, if it was dragged
        return;
    }
    if (mark == 0)
        setStart(marks, std::move(stamps));
    else
        moveMark(marks, mark, std::move(stamps));
    m_notes->tell({});
    m_document.setMarks(m_run, tr("mark moved"), marks);
}

void TakingWindow::moveMarkHere() {
    m_deck->finishPresses();
    if (m_notes->takesEdits() && !m_selected) {
        m_notes->moveMarkHere();
        return;
    }
    const RunMarks marks = m_run < 0 ? RunMarks() : m_document.marks(m_run);
    if (!m_selected || !stampsOf(marks, *m_selected)) {
        refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    if (m_deck->cameras() == 0) {
        refuseWithoutFilm();
        return;
    }
    m_deck->whenMeant(
        [this](Stamps stamps) {
            stamps.resize(std::min(stamps.size(), m_deck->cameras()));
            moveMarkTo(std::move(stamps));
        },
        [this](const QString& why) { refuse(why); });
}

void TakingWindow::moveMarkTo(Stamps stamps) {
    if (m_selected && stampsOf(m_document.marks(m_run), *m_selected))
        moveTo(*m_selected, std::move(stamps));
}

/// The selected mark, otherwise the last, moves; the frame on the screen stays.
void TakingWindow::nudgeMark(int frames) {
    m_deck->finishPresses(); // the last mark may be one of them
    if (m_notes->takesEdits() && !m_selected) {
        m_notes->nudgeMark(frames);
        return;
    }
    const auto mark = m_selected ? m_selected : lastMark();
    if (m_run < 0 || !mark) {
        refuse(tr("There is no mark yet that could be moved."));
        return;
    }
    const RunMarks marks = m_document.marks(m_run);
    const Stamps* const before = stampsOf(marks, *mark);
    if (!before)
        return;
    if (m_deck->cameras() == 0 || !m_deck->fault(0).isEmpty())
        nudge(*mark, frames);
    else
        m_deck->whenKnown(
            before->front(), [this, mark = *mark, frames](const Stamps&) { nudge(mark, frames); },
            [this](const QString& why) { refuse(why); });
}

void TakingWindow::nudge(std::size_t mark, int frames) {
    const RunMarks marks = m_document.marks(m_run);
    const Stamps* const before = stampsOf(marks, mark);
    if (!before)
        return;
    Stamps stamps = *before;
    for (std::size_t camera = 0; camera < stamps.size(); ++camera)
        stamps[camera] = m_deck->nudged(camera < m_deck->cameras() ? camera : m_deck->views(),
                                        stamps[camera], frames);
    m_selected = mark;
    moveTo(mark, std::move(stamps));
}

void TakingWindow::dropMark(std::size_t mark, double seconds) {
    const RunMarks marks = m_run < 0 ? RunMarks() : m_document.marks(m_run);
    const Stamps* const before = stampsOf(marks, mark);
    if (!before)
        return;
    if (m_deck->cameras() == 0 || !m_deck->fault(0).isEmpty())
        dropMarkAt(mark, later(before->front(), seconds - before->front().seconds()));
    else
        m_deck->whenKnown(
            seconds, [this, mark](const Stamps& stamps) { dropMarkAt(mark, stamps.front()); },
            [this](const QString& why) { refuse(why); });
}

void TakingWindow::dropMarkAt(std::size_t mark, const CMTime& moment) {
    const RunMarks marks = m_document.marks(m_run);
    const Stamps* const before = stampsOf(marks, mark);
    if (!before)
        return;
    Stamps stamps = *before;
    const double way = secondsFrom(stamps.front(), moment);
    for (std::size_t camera = 0; camera < stamps.size(); ++camera)
        stamps[camera] = shifted(camera < m_deck->cameras() ? m_deck->index(camera).get() : nullptr,
                                 stamps[camera], way);
    select(mark);
    moveTo(mark, std::move(stamps));
}

void TakingWindow::deleteMark() {
    if (m_notes->takesEdits() && !m_selected) {
        m_notes->deleteMark();
        return;
    }
    m_deck->finishPresses();
    RunMarks marks = m_run < 0 ? RunMarks() : m_document.marks(m_run);
    if (!m_selected || !stampsOf(marks, *m_selected)) {
        refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    m_notes->tell({});
    if (*m_selected == 0)
        marks.start.reset();
    else
        removeMark(marks, *m_selected);
    m_selected.reset();
    m_document.setMarks(m_run, tr("mark removed"), marks);
}

void TakingWindow::goToMark(std::size_t mark) {
    if (m_run < 0)
        return;
    const RunMarks marks = m_document.marks(m_run);
    const Stamps* const stamps = stampsOf(marks, mark);
    if (!stamps)
        return;
    select(mark);
    m_deck->seek(stamps->front());
}

/// Somebody who watches sees the boat come there.
void TakingWindow::goToExpected() {
    if (m_run < 0 || m_deck->cameras() == 0) {
        refuseWithoutFilm();
        return;
    }
    constexpr double SecondsToWatch = 1;
    m_deck->finishPresses(); // the next split is another one then
    const ExpectedPlace expected = expectedPlace(m_document, m_run);
    if (!expected.seconds) {
        refuse(expected.why);
        return;
    }
    m_deck->seek(*expected.seconds - (m_deck->isPlaying() ? SecondsToWatch : 0));
    const bool isBehind = m_deck->end() > 0 && *expected.seconds > m_deck->end();
    if (isBehind)
        refuse(tr("Split %1 is expected behind the end of the film.").arg(expected.split));
    else
        m_views.front()->flash(tr("Split %1 is expected here").arg(expected.split));
}

/// The mark before or after the frame that was asked for last.
void TakingWindow::stepMark(int step) {
    if (m_notes->stepMark(step))
        return;
    const Stamps meant = m_deck->meant();
    if (m_run < 0 || meant.empty())
        return;
    const RunMarks marks = m_document.marks(m_run);
    const double now = meant.front().seconds();
    std::optional<std::size_t> found;
    for (std::size_t mark = 0; mark <= marks.marks.size(); ++mark) {
        const Stamps* const stamps = stampsOf(marks, mark);
        if (!stamps)
            continue;
        const double moment = stamps->front().seconds();
        if (step < 0 && moment < now)
            found = mark;
        if (step > 0 && moment > now && !found)
            found = mark;
    }
    if (found)
        goToMark(*found);
}

void TakingWindow::setPenalty(GatePenalty penalty) {
    const auto gates = m_document.info().gates;
    if (m_run < 0 || gates <= 0)
        return;
    const int gate = m_gates->current();
    m_document.editRun(m_run, tr("penalty at gate %1").arg(gate), [&](athletedata031& run) {
        setPenaltyAndDetails(run, gate, static_cast<std::int64_t>(penalty), gates);
    });
    stepGate(1);
}

void TakingWindow::stepGate(int step) {
    if (!m_notes->stepGate(step))
        m_gates->setCurrent(m_gates->current() + step);
}

void TakingWindow::setUpCourse() {
    CourseDialog dialog(m_document.info(), workspace(), this);
    if (dialog.exec() == QDialog::Accepted)
        m_document.editInfo(tr("course"), [&](infodata031& info) { info = dialog.info(); });
}

void TakingWindow::readFilmNames() {
    QString pattern = m_document.filmPattern();
    for (bool isAgreed = false; !isAgreed;) {
        pattern = QInputDialog::getText(
            this, tr("Names of the films"),
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

void TakingWindow::importSplitFile() {
    if (!commit())
        return;
    for (const QString& file :
         m_chooseFiles(tr("Import split file"), tr("Split files (*.kvx);;All files (*)")))
        m_document.importSplitFile(file, this);
}

void TakingWindow::importResults() {
    if (!commit())
        return;
    for (const QString& file :
         m_chooseFiles(tr("Import official results"), tr("Lists (*.csv *.txt);;All files (*)")))
        try {
            importResults(QFileInfo(file).fileName(),
                          parseResults(readTextFile(file.toStdString())));
        } catch (const FileError& error) {
            tell(error.reason());
        } catch (const DecodeError& error) {
            tell(error.what());
        }
}

/// Nothing is taken before the coach has seen what there is for whom.
void TakingWindow::importResults(const QString& name, const ResultsList& list) {
    if (list.results.empty()) {
        std::string why = tr("There are no results in %1.").arg(name).toStdString();
        for (const SkippedLine& line : list.skipped)
            why += "\nLine " + std::to_string(line.line) + ": " + line.reason;
        tell(why);
        return;
    }
    const splittakerdata031 race = timesOf(m_document.value());
    ResultsDialog dialog(race.athletes, list, name, this);
    if (dialog.exec() == QDialog::Accepted)
        m_document.takeResults(list, dialog.taken());
}

void TakingWindow::removeRun() {
    if (!commit())
        return;
    m_document.removeRun(m_run);
}

void TakingWindow::moveRun(int step) {
    if (!commit())
        return;
    m_document.moveRun(m_run, m_run + step);
}

void TakingWindow::reset() {
    if (!commit())
        return;
    m_document.reset(this);
}

void TakingWindow::exportData() {
    if (!commit())
        return;
    if (m_document.runCount() == 0) {
        tell(messages::NothingToExport);
        return;
    }
    ExportDialog dialog(workspace(), m_document.path(), this);
    if (dialog.exec() == QDialog::Accepted)
        (void)m_document.exportTo(dialog.path(), {dialog.alsoCsv(), dialog.alsoPdf()}, this);
}

void TakingWindow::findRun() {
    m_name->setFocus();
    m_name->selectAll();
}

/// The films of the folder that carry the name become a file of their own.
void TakingWindow::collectTraining() {
    const QString athlete = m_name->text().trimmed();
    if (!isAthleteName(athlete.toStdString()) ||
        !workspace().ask({"", messages::AskToCollect}, tr("Create"), this))
        return;
    const TrainingPlan plan{athlete.toStdString(),
                            workspace().preferences().integer("predeterminatedsplits"),
                            workspace().clock()()};
    const QString target = m_document.folder() + '/' + TrainingFileName;
    if (QFile::exists(target) &&
        !workspace().ask({"", messages::AskToOverwrite}, tr("Overwrite"), this))
        return;
    try {
        const TrainingCollection training =
            kavela::collectTraining(m_document.folder().toStdString(), plan);
        if (saveSplitFile(training.document, target.toStdString(), workspace().log()))
            tell(messages::Saved);
        else
            tell("Failed to create file");
    } catch (const FileError& error) {
        tell(error.what());
    }
}

} // namespace kavela::desktop
