#include "desktop/taking/notes/note_marks.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/lane_strip.h"
#include "desktop/taking/notes/mark_list.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/messages.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::desktop {

NoteMarks::NoteMarks(NoteDesk& desk, MarkList& list, LaneStrip& lanes, QObject* parent)
    : QObject(parent), m_desk(desk), m_list(list), m_lanes(lanes) {
    connect(&m_list, &MarkList::chosen, this, &NoteMarks::goTo);
    connect(&m_list, &MarkList::filterChanged, this, &NoteMarks::show);
    connect(&m_list, &MarkList::clipsWanted, this, &NoteMarks::playClips);
    connect(&m_lanes, &LaneStrip::chosen, this, &NoteMarks::goTo);
    connect(&m_lanes, &LaneStrip::dragged, this,
            [this](double seconds) { m_desk.deck.seek(seconds); });
    connect(&m_lanes, &LaneStrip::dropped, this, &NoteMarks::dropMark);
    connect(&m_desk.deck, &FilmDeck::indexChanged, this, &NoteMarks::show);
}

void NoteMarks::read() {
    const athletedata031* const run = m_desk.record();
    m_marks = run ? annotationLanes(*run, m_desk.document.info()) : AnnotationLanes();
    keepSelection();
}

/// The selected mark may stand elsewhere in the record after an edit, or be gone.
void NoteMarks::keepSelection() {
    if (!m_selected)
        return;
    const auto isSame = [&](const LaneMark& mark) {
        return mark.handle == m_selected->handle && mark.time == m_selected->time;
    };
    const auto isMoved = [&](const LaneMark& mark) {
        return mark.kind == m_selected->kind && mark.film == m_selected->film &&
               mark.time == m_selected->time;
    };
    if (std::ranges::any_of(m_marks.marks, isSame))
        return;
    const auto found = std::ranges::find_if(m_marks.marks, isMoved);
    if (found == m_marks.marks.end())
        clearSelection();
    else
        select(*found);
}

void NoteMarks::show() {
    const FilmDeck& deck = m_desk.deck;
    const bool hasFilm = deck.index(0) != nullptr; // which may come before or after its first frame
    const auto own = [this](std::int64_t camera, double seconds) {
        return m_films.ownSeconds(camera, seconds);
    };
    m_list.setMarks(m_desk.record() ? marksList(*m_desk.record(), m_marks.marks, own)
                                    : std::vector<ListedMark>(),
                    hasFilm ? MarkList::Film{deck.start(), deck.end()} : MarkList::Film{});
    m_lanes.setLanes(m_marks, m_list.filter());
    showSelection();
}

void NoteMarks::showSelection() {
    const auto handle = m_selected ? std::optional(m_selected->handle) : std::nullopt;
    m_list.setSelected(handle);
    m_lanes.setSelected(handle);
}

void NoteMarks::clearSelection() {
    m_selected.reset();
    emit cleared();
    showSelection();
}

void NoteMarks::select(const LaneMark& mark) {
    m_selected = mark;
    emit noteSelected();
    if (m_page && m_page->kind() == mark.kind)
        m_page->choose(mark);
    showSelection();
}

void NoteMarks::selectAt(MarkKind kind, const CMTime& moment) {
    const LaneMark* found = nullptr;
    for (const LaneMark& mark : m_marks.marks)
        if (mark.kind == kind && mark.time == moment && mark.film.kind == FilmKind::Own &&
            mark.film.number == 0)
            found = &mark;
    if (found)
        select(LaneMark(*found));
}

/// A mark of another mode brings its mode with it, where that can be entered.
void NoteMarks::goTo(const MarkHandle& handle) {
    const auto found = std::ranges::find(m_marks.marks, handle, &LaneMark::handle);
    if (found == m_marks.marks.end())
        return;
    const LaneMark mark = *found;
    const auto mode = modeOf(mark.kind);
    if (!mode) {
        emit splitChosen(mark.kind == MarkKind::Start ? 0 : mark.handle.record + 1);
        return;
    }
    emit modeWanted(*mode);
    tell({});
    select(mark);
    seek(mark);
}

void NoteMarks::seek(const LaneMark& mark) {
    switch (mark.film.kind) {
    case FilmKind::Fixed:
        if (const auto own = m_films.ownSeconds(mark.film.number, mark.seconds))
            m_desk.deck.seek(*own);
        else
            tell(tr("This mark lies on the film of a fixed camera that is not in step."));
        return;
    case FilmKind::Versus:
        if (!m_films.showOtherRun()) {
            tell(tr("The other run of this time loss is not in this file."));
            return;
        }
        break;
    case FilmKind::Own:
        if (mark.film.number > 0) {
            m_desk.deck.seek(mark.seconds);
            return;
        }
        break;
    }
    m_desk.deck.seek(mark.time);
}

void NoteMarks::press(const FrameAct& act) {
    tell({});
    FilmDeck& deck = m_desk.deck;
    const athletedata031* const run = m_desk.record();
    if (run && !m_page->needsFrame())
        actPressed(act, deck.meant());
    else if (run && deck.cameras() > 0)
        deck.whenMeant(
            [this, act, pressed = m_desk.document.identityOf(m_desk.run)](const Stamps& stamps) {
                // A press belongs to the run that was in front when it came.
                if (m_desk.record() && m_desk.document.placeOf(pressed) == m_desk.run)
                    actPressed(act, stamps);
                else
                    refuse(tr("Another run came to the front: nothing was marked."));
            },
            [this](const QString& why) { refuse(why); });
    else if (run && !m_desk.document.film(m_desk.run, 0).isEmpty())
        refuse(
            tr("Nothing can be marked: %1 is not in the folder of the split file. Cameras > Where "
               "are the films now?")
                .arg(QString::fromStdString(run->videoname.front())));
    else
        m_desk.workspace.showAlert({"", messages::NoVideo}, m_list.window());
}

void NoteMarks::actPressed(const FrameAct& act, const Stamps& stamps) {
    const QScopedValueRollback<bool> pressed(m_isPressed, true);
    const auto own = static_cast<std::ptrdiff_t>(std::min(stamps.size(), m_desk.deck.cameras()));
    m_desk.fixedMoment = std::cmp_less(own, stamps.size())
                             ? std::optional(stamps[static_cast<std::size_t>(own)])
                             : std::nullopt;
    act(Stamps(stamps.begin(), stamps.begin() + own));
}

/// What is marked on one camera follows on the others.
void NoteMarks::moveSelected(const CMTime& moment) {
    const LaneMark mark = *m_selected;
    if (const auto why = refusalOfMove(*m_desk.record(), mark.handle, moment)) {
        refuse(QString::fromStdString(*why));
        emit refreshWanted(); // where it was, if it was dragged
        return;
    }
    tell({});
    m_desk.document.editRun(m_desk.run, tr("mark moved"), [&](athletedata031& run) {
        m_selected->handle = moveLaneMark(run, m_desk.document.info(), mark.handle, moment);
        m_selected->time = moment;
    });
    if (m_selected)
        select(LaneMark(*m_selected));
}

void NoteMarks::moveMarkHere() {
    if (!m_selected || !m_desk.record()) {
        refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    const auto camera = shownCamera(m_selected->film);
    if (!camera) {
        refuse(tr("This mark lies on another film than the one shown."));
        return;
    }
    m_desk.deck.whenMeant(
        [this, camera = *camera](const Stamps& stamps) {
            if (m_selected && camera < stamps.size())
                moveSelected(stamps[camera]);
        },
        [this](const QString& why) { refuse(why); });
}

/// Which of the deck's cameras shows a film of the run; nothing for one that is not open.
std::optional<std::size_t> NoteMarks::shownCamera(const FilmOfRun& film) const {
    const auto number = static_cast<std::size_t>(film.number);
    const FilmDeck& deck = m_desk.deck;
    if (film.kind == FilmKind::Own && number < deck.cameras())
        return number;
    if (film.kind == FilmKind::Fixed && m_desk.fixedCamera == number &&
        !deck.filmsBeside().isEmpty())
        return deck.cameras();
    return std::nullopt;
}

/// The mark goes to the frame on which it was let go.
void NoteMarks::dropMark(const MarkHandle& handle, double seconds) {
    const auto found = std::ranges::find(m_marks.marks, handle, &LaneMark::handle);
    if (found == m_marks.marks.end() || !m_desk.record())
        return;
    m_selected = *found;
    const auto camera = shownCamera(found->film);
    const auto index = camera ? m_desk.deck.index(*camera) : nullptr;
    const auto frame = index ? index->frameAt(seconds) : std::nullopt;
    moveSelected(frame ? index->stampOf(*frame) : later(found->time, seconds - found->seconds));
}

/// Marks on other films than the run's own have no place in its clips.
void NoteMarks::playClips() {
    const double around = m_list.clipSeconds();
    std::vector<FilmPart> clips;
    for (const MarkHandle& handle : m_list.forClips()) {
        const auto mark = std::ranges::find(m_marks.marks, handle, &LaneMark::handle);
        if (mark == m_marks.marks.end() || mark->film.kind == FilmKind::Versus)
            continue;
        const auto seconds = mark->film.kind == FilmKind::Fixed
                                 ? m_films.ownSeconds(mark->film.number, mark->seconds)
                                 : std::optional(mark->seconds);
        if (seconds)
            clips.push_back({std::max(m_desk.deck.start(), *seconds - around),
                             std::min(m_desk.deck.end(), *seconds + around)});
    }
    std::erase_if(clips, [](const FilmPart& clip) { return clip.from >= clip.to; });
    if (clips.empty())
        tell(tr("None of these marks lies on the film that is shown."));
    m_desk.clips.play(joinedClips(std::move(clips)));
}

void NoteMarks::nudgeMark(int frames) {
    if (!m_selected || !m_desk.record()) {
        refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    const FilmDeck& deck = m_desk.deck;
    const bool isOnFilm = shownCamera(m_selected->film) == std::size_t{0};
    if (isOnFilm && deck.fault(0).isEmpty())
        m_desk.deck.whenKnown(
            m_selected->time, [this, frames](const Stamps&) { nudgeSelected(frames); },
            [this](const QString& why) { refuse(why); });
    else
        nudgeSelected(frames);
}

void NoteMarks::nudgeSelected(int frames) {
    if (m_selected && m_desk.record())
        moveSelected(m_desk.deck.nudged(shownCamera(m_selected->film).value_or(m_desk.deck.views()),
                                        m_selected->time, frames));
}

void NoteMarks::deleteMark() {
    m_desk.deck.finishPresses();
    if (!m_desk.record())
        return;
    tell({});
    if (!m_selected) {
        if (!m_page || !m_page->removeCurrent())
            refuse(tr("Nothing is selected that could be removed. Ctrl and the arrows go from mark "
                      "to mark."));
        return;
    }
    const MarkHandle handle = m_selected->handle;
    clearSelection();
    m_desk.document.editRun(m_desk.run, tr("mark removed"), [&](athletedata031& run) {
        removeLaneMark(run, m_desk.document.info(), handle);
    });
}

void NoteMarks::stepMark(MarkKind kind, int step) {
    const Stamps meant = m_desk.deck.meant();
    const std::optional<CMTime> now = !meant.empty() ? std::optional(meant.front())
                                      : m_selected   ? std::optional(m_selected->time)
                                                     : std::nullopt;
    const std::array kinds{kind};
    const auto place = now ? step < 0 ? previousMark(m_marks.marks, {}, *now, onlyKinds(kinds))
                                      : nextMark(m_marks.marks, {}, *now, onlyKinds(kinds))
                           : std::nullopt;
    if (place)
        goTo(m_marks.marks[*place].handle);
}

} // namespace kavela::desktop
