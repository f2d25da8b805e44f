#include "desktop/taking/split_mode.h"

#include "common/alerts.h"
#include "desktop/film/film_stage.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/expected_place.h"
#include "desktop/taking/gate_strip.h"
#include "splittaking/annotations/film_marks.h"
#include "splittaking/messages.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

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

const Stamps* stampsOf(const RunMarks& marks, std::size_t mark) {
    if (mark == 0)
        return marks.start && !marks.start->empty() ? &*marks.start : nullptr;
    return mark <= marks.marks.size() && !marks.marks[mark - 1].empty() ? &marks.marks[mark - 1]
                                                                        : nullptr;
}

SplitMode::SplitMode(TakingDocument& document, FilmStage& stage, GateStrip& gates,
                     Workspace& workspace)
    : QObject(&stage),
      m_document(document),
      m_stage(stage),
      m_gates(gates),
      m_workspace(workspace) {}

void SplitMode::showRun(int run) {
    m_run = run;
    m_selected.reset();
}

void SplitMode::follow() {
    if (m_selected && !stampsOf(runMarks(), *m_selected))
        m_selected.reset();
}

void SplitMode::leave() {
    m_selected.reset();
    emit changed();
}

RunMarks SplitMode::runMarks() const {
    return m_run < 0 ? RunMarks() : m_document.marks(m_run);
}

std::optional<std::size_t> SplitMode::lastMark() const {
    const RunMarks marks = runMarks();
    for (std::size_t mark = marks.marks.size() + 1; mark-- > 0;)
        if (stampsOf(marks, mark))
            return mark;
    return std::nullopt;
}

std::vector<LineMark> SplitMode::marks() const {
    const RunMarks marks = runMarks();
    std::vector<LineMark> line;
    for (std::size_t mark = 0; mark <= marks.marks.size(); ++mark)
        if (const Stamps* const stamps = stampsOf(marks, mark))
            line.push_back(
                {stamps->front(), mark == 0 ? tr("Start") : QString::number(mark), mark});
    return line;
}

void SplitMode::select(std::size_t mark) {
    m_selected = mark;
    emit chosen();
    emit changed();
}

void SplitMode::refuse(const QString& why) {
    m_stage.refuse(why);
}

/// The order of the marks is told where the coach looks; what must be decided first, in a box. That
/// would stand in the way of whoever watches a film that runs, or uses the key in another mode.
void SplitMode::refuseMark(const Alert& why) {
    const bool isInTheWay = &m_stage.front() != this || m_stage.deck().isPlaying();
    if (!why.title.empty() && !isInTheWay) {
        m_workspace.showAlert(why, m_stage.window());
        return;
    }
    const QString text = qtText(why.title.empty() ? why.text : why.title + ' ' + why.text);
    refuse(text);
    emit told(text);
}

/// A run whose films were moved says where they were looked for.
void SplitMode::refuseWithoutFilm() {
    if (m_run < 0 || m_stage.films().isEmpty())
        m_workspace.showAlert({"", messages::NoVideo}, m_stage.window());
    else
        refuse(
            tr("Nothing can be marked: %1 is not in the folder of the split file. Cameras > Where "
               "are the films now?")
                .arg(QFileInfo(m_stage.films().front()).fileName()));
}

void SplitMode::refuseWithoutMark() {
    refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
}

/// A press belongs to the run that was in front when it came.
void SplitMode::whenMeant(const std::function<void(Stamps)>& act) {
    if (m_run < 0 || m_stage.deck().cameras() == 0) {
        refuseWithoutFilm();
        return;
    }
    m_stage.whenMeant([this, act, pressed = m_document.identityOf(m_run)](const Stamps& stamps) {
        if (m_run >= 0 && m_document.placeOf(pressed) == m_run)
            act(stamps);
        else
            refuse(tr("Another run came to the front: nothing was marked."));
    });
}

void SplitMode::markHere() {
    whenMeant([this](Stamps stamps) { markSplit(std::move(stamps)); });
}

/// Times from elsewhere are replaced only when that is meant.
bool SplitMode::mayMarkAnew(const RunMarks& marks) const {
    return marks != RunMarks() || !hasTimes(m_document.run(m_run)) ||
           m_workspace.ask({"", tr("The times of this run were taken without marks on the video. "
                                   "Marking it anew replaces them.")
                                    .toStdString()},
                           tr("Mark anew"), m_stage.window());
}

void SplitMode::markSplit(Stamps stamps) {
    RunMarks marks = runMarks();
    if (!mayMarkAnew(marks))
        return;
    const CMTime moment = stamps.front();
    if (const auto refused = markNext(marks, std::move(stamps), m_document.info().totalsplits)) {
        refuseMark(*refused);
        return;
    }
    const std::size_t taken = markAt(marks, moment).value_or(marks.marks.size());
    const bool isStart = taken == 0;
    emit chosen();
    m_selected = taken;
    m_document.setMarks(m_run, isStart ? tr("start mark") : tr("split %1").arg(taken), marks);
    m_stage.flash(
        isStart ? tr("Start")
                : tr("%1:  %2").arg(taken).arg(shownHundredths(splitTimes(marks).at(taken - 1))));
    emit told(
        taken < marks.marks.size() && !isStart
            ? tr("Split %1 was put in between two marks. Ctrl+Z takes it out again.").arg(taken)
            : QString());
}

/// A mark goes to another frame, unless it would pass its neighbour.
void SplitMode::moveTo(std::size_t mark, Stamps stamps) {
    RunMarks marks = runMarks();
    if (const auto refused = refusalToMove(marks, mark, stamps.front())) {
        refuseMark(*refused);
        emit changed(); // where it was, if it was dragged
        return;
    }
    if (mark == 0)
        setStart(marks, std::move(stamps));
    else
        moveMark(marks, mark, std::move(stamps));
    emit told({});
    m_document.setMarks(m_run, tr("mark moved"), marks);
}

void SplitMode::moveMarkHere() {
    if (!m_selected || !stampsOf(runMarks(), *m_selected)) {
        refuseWithoutMark();
        return;
    }
    whenMeant([this](Stamps stamps) {
        if (m_selected && stampsOf(runMarks(), *m_selected))
            moveTo(*m_selected, std::move(stamps));
    });
}

void SplitMode::nudgeMark(int frames) {
    const auto mark = m_selected ? m_selected : lastMark();
    if (m_run < 0 || !mark) {
        refuse(tr("There is no mark yet that could be moved."));
        return;
    }
    const RunMarks marks = runMarks();
    if (const Stamps* const before = stampsOf(marks, *mark))
        m_stage.whenKnown(before->front(),
                          [this, mark = *mark, frames](const auto&) { nudge(mark, frames); });
}

void SplitMode::nudge(std::size_t mark, int frames) {
    const RunMarks marks = runMarks();
    const Stamps* const before = stampsOf(marks, mark);
    if (!before)
        return;
    const FilmDeck& deck = m_stage.deck();
    Stamps stamps = *before;
    for (std::size_t camera = 0; camera < stamps.size(); ++camera)
        stamps[camera] =
            deck.nudged(camera < deck.cameras() ? camera : deck.views(), stamps[camera], frames);
    m_selected = mark;
    moveTo(mark, std::move(stamps));
}

void SplitMode::dropMark(std::size_t number, double seconds) {
    const RunMarks marks = runMarks();
    if (const Stamps* const before = stampsOf(marks, number))
        m_stage.whenKnown(seconds, [this, number, from = before->front(),
                                    seconds](const std::optional<CMTime>& frame) {
            dropAt(number, frame ? *frame : later(from, seconds - from.seconds()));
        });
}

void SplitMode::dropAt(std::size_t mark, const CMTime& moment) {
    const RunMarks marks = runMarks();
    const Stamps* const before = stampsOf(marks, mark);
    if (!before)
        return;
    const FilmDeck& deck = m_stage.deck();
    Stamps stamps = *before;
    const double way = secondsFrom(stamps.front(), moment);
    for (std::size_t camera = 0; camera < stamps.size(); ++camera)
        stamps[camera] = shifted(camera < deck.cameras() ? deck.index(camera).get() : nullptr,
                                 stamps[camera], way);
    select(mark);
    moveTo(mark, std::move(stamps));
}

void SplitMode::deleteMark() {
    m_stage.deck().finishPresses();
    RunMarks marks = runMarks();
    if (!m_selected || !stampsOf(marks, *m_selected)) {
        refuseWithoutMark();
        return;
    }
    emit told({});
    if (*m_selected == 0)
        marks.start.reset();
    else
        removeMark(marks, *m_selected);
    m_selected.reset();
    m_document.setMarks(m_run, tr("mark removed"), marks);
}

void SplitMode::goToMark(std::size_t number) {
    const RunMarks marks = runMarks();
    const Stamps* const stamps = stampsOf(marks, number);
    if (!stamps)
        return;
    select(number);
    m_stage.deck().seek(stamps->front());
}

/// Somebody who watches sees the boat come there.
void SplitMode::goToExpected() {
    FilmDeck& deck = m_stage.deck();
    if (m_run < 0 || deck.cameras() == 0) {
        refuseWithoutFilm();
        return;
    }
    constexpr double SecondsToWatch = 1;
    deck.finishPresses(); // the next split is another one then
    const ExpectedPlace expected = expectedPlace(m_document, m_run);
    if (!expected.seconds) {
        refuse(expected.why);
        return;
    }
    deck.seek(*expected.seconds - (deck.isPlaying() ? SecondsToWatch : 0));
    const bool isBehind = deck.end() > 0 && *expected.seconds > deck.end();
    if (isBehind)
        refuse(tr("Split %1 is expected behind the end of the film.").arg(expected.split));
    else
        m_stage.flash(tr("Split %1 is expected here").arg(expected.split));
}

/// The mark before or after the frame that was asked for last.
bool SplitMode::stepMark(int step) {
    const Stamps meant = m_stage.deck().meant();
    if (meant.empty())
        return true;
    const double now = meant.front().seconds();
    std::optional<std::size_t> found;
    for (const LineMark& mark : marks()) {
        const double moment = mark.stamp.seconds();
        if (step < 0 && moment < now)
            found = mark.number;
        if (step > 0 && moment > now && !found)
            found = mark.number;
    }
    if (found)
        goToMark(*found);
    return true;
}

bool SplitMode::stepGate(int step) {
    m_gates.setCurrent(m_gates.current() + step);
    return true;
}

} // namespace kavela::desktop
