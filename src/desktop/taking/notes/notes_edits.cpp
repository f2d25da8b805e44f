#include "desktop/film/film_deck.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/notes/camera_page.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/comment_page.h"
#include "desktop/taking/notes/loss_page.h"
#include "desktop/taking/notes/mark_list.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/notes/stroke_page.h"
#include "desktop/taking/notes/tag_page.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/messages.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

/// What the keys and the mouse do to the marks of the modes.
namespace kavela::desktop {

/// Acts with the frames that are meant now, as soon as they are known, or tells why it does not.
void NotesPanel::press(const FrameAct& act) {
    tell({});
    FilmDeck& deck = m_desk.deck;
    const athletedata031* const run = m_desk.record();
    if (run && !page()->needsFrame())
        actPressed(act, deck.meant());
    else if (run && deck.cameras() > 0)
        deck.whenMeant([this, act](const Stamps& stamps) { actPressed(act, stamps); },
                       [this](const QString& why) { refuse(why); });
    else if (run && !m_desk.document.film(m_desk.run, 0).isEmpty())
        refuse(
            tr("Nothing can be marked: %1 is not in the folder of the split file. Cameras > Where "
               "are the films now?")
                .arg(QString::fromStdString(run->videoname.front())));
    else
        m_desk.workspace.showAlert({"", messages::NoVideo}, window());
}

void NotesPanel::actPressed(const FrameAct& act, const Stamps& stamps) {
    const QScopedValueRollback<bool> pressed(m_isPressed, true);
    const auto own = static_cast<std::ptrdiff_t>(std::min(stamps.size(), m_desk.deck.cameras()));
    m_desk.fixedMoment = std::cmp_less(own, stamps.size())
                             ? std::optional(stamps[static_cast<std::size_t>(own)])
                             : std::nullopt;
    act(Stamps(stamps.begin(), stamps.begin() + own));
}

void NotesPanel::mark() {
    press([this](const Stamps& stamps) { page()->mark(stamps); });
}

void NotesPanel::actIn(NoteMode mode, const std::function<void()>& act) {
    if (m_mode == mode)
        act();
    else
        refuse(tr("This key works in the mode %1.").arg(titleOf(mode)));
}

void NotesPanel::markStroke(HandCode hand) {
    press([this, hand](const Stamps& stamps) { m_strokes->markHand(stamps, hand); });
}

void NotesPanel::swapHand() {
    m_strokes->swapChosen();
}

void NotesPanel::playTag() {
    m_tags->playPart();
}

void NotesPanel::goToOtherRun() {
    m_losses->goToOtherRun();
}

void NotesPanel::recordRadio() {
    m_comments->recordRadio();
}

/// What is marked on one camera follows on the others.
void NotesPanel::moveSelected(const CMTime& moment) {
    const LaneMark mark = *m_selected;
    if (const auto why = refusalOfMove(*m_desk.record(), mark.handle, moment)) {
        refuse(QString::fromStdString(*why));
        refresh(); // where it was, if it was dragged
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

void NotesPanel::moveMarkHere() {
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
std::optional<std::size_t> NotesPanel::shownCamera(const FilmOfRun& film) const {
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
void NotesPanel::dropMark(const MarkHandle& handle, double seconds) {
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
void NotesPanel::playClips() {
    const double around = m_list->clipSeconds();
    std::vector<Clip> clips;
    for (const MarkHandle& handle : m_list->forClips()) {
        const auto mark = std::ranges::find(m_marks.marks, handle, &LaneMark::handle);
        if (mark == m_marks.marks.end() || mark->film.kind == FilmKind::Versus)
            continue;
        const auto seconds = mark->film.kind == FilmKind::Fixed
                                 ? m_cameras->ownSeconds(mark->film.number, mark->seconds)
                                 : std::optional(mark->seconds);
        if (seconds)
            clips.push_back({std::max(m_desk.deck.start(), *seconds - around),
                             std::min(m_desk.deck.end(), *seconds + around)});
    }
    std::erase_if(clips, [](const Clip& clip) { return clip.from >= clip.to; });
    if (clips.empty())
        tell(tr("None of these marks lies on the film that is shown."));
    m_desk.clips.play(joinedClips(std::move(clips)));
}

void NotesPanel::nudgeMark(int frames) {
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

void NotesPanel::nudgeSelected(int frames) {
    if (m_selected && m_desk.record())
        moveSelected(m_desk.deck.nudged(shownCamera(m_selected->film).value_or(m_desk.deck.views()),
                                        m_selected->time, frames));
}

void NotesPanel::deleteMark() {
    m_desk.deck.finishPresses();
    if (!m_desk.record())
        return;
    tell({});
    if (!m_selected) {
        if (!page() || !page()->removeCurrent())
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

/// The mark of the mode before or after the frame on the screen; without a film, beside the
/// selected one.
bool NotesPanel::stepMark(int step) {
    const auto kind = page() ? page()->kind() : std::nullopt;
    if (!kind)
        return false;
    const Stamps meant = m_desk.deck.meant();
    const std::optional<CMTime> now = !meant.empty() ? std::optional(meant.front())
                                      : m_selected   ? std::optional(m_selected->time)
                                                     : std::nullopt;
    const std::array kinds{*kind};
    const auto place = now ? step < 0 ? previousMark(m_marks.marks, {}, *now, onlyKinds(kinds))
                                      : nextMark(m_marks.marks, {}, *now, onlyKinds(kinds))
                           : std::nullopt;
    if (place)
        goTo(m_marks.marks[*place].handle);
    return true;
}

bool NotesPanel::stepGate(int step) {
    return page() && page()->stepGate(step);
}

} // namespace kavela::desktop
