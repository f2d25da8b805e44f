#include "desktop/film/film_deck.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/notes/camera_page.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/comment_page.h"
#include "desktop/taking/notes/loss_page.h"
#include "desktop/taking/notes/mark_list.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/notes/stroke_page.h"
#include "desktop/taking/notes/tag_page.h"
#include "desktop/taking/taking_document.h"
#include "splittaking/messages.h"

#include <algorithm>

/// What the keys and the mouse do to the marks of the modes.
namespace kavela::desktop {

/// The stamps of the frames on the screen; nothing, once the coach was told why, where the mode
/// needs them and there are none.
std::optional<Stamps> NotesPanel::stampsToMark() {
    tell({});
    Stamps stamps = m_desk.deck.stamps();
    if (m_desk.record() && (!stamps.empty() || !page()->needsFrame()))
        return stamps;
    if (!m_desk.record() || m_desk.deck.cameras() == 0)
        m_desk.workspace.showAlert({"", messages::NoVideo}, window());
    else
        tell(tr("No frame of the film is shown that could be marked."));
    return std::nullopt;
}

void NotesPanel::mark() {
    if (const auto stamps = stampsToMark())
        page()->mark(*stamps);
}

void NotesPanel::actIn(NoteMode mode, const std::function<void()>& act) {
    if (m_mode == mode)
        act();
    else
        tell(tr("This key works in the mode %1.").arg(titleOf(mode)));
}

void NotesPanel::markStroke(HandCode hand) {
    if (const auto stamps = stampsToMark())
        m_strokes->markHand(*stamps, hand);
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
    m_desk.document.editRun(m_desk.run, tr("mark moved"), [&](athletedata031& run) {
        m_selected->handle = moveLaneMark(run, m_desk.document.info(), mark.handle, moment);
        m_selected->time = moment;
    });
    if (m_selected)
        select(LaneMark(*m_selected));
}

void NotesPanel::moveMarkHere() {
    if (!m_selected || !m_desk.record())
        return;
    const auto camera = shownCamera(m_selected->film);
    if (!camera) {
        tell(tr("This mark lies on another film than the one shown."));
        return;
    }
    if (const auto stamp = m_desk.deck.stamp(*camera))
        moveSelected(*stamp);
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
    if (m_selected && m_desk.record())
        moveSelected(m_desk.deck.nudged(shownCamera(m_selected->film).value_or(m_desk.deck.views()),
                                        m_selected->time, frames));
}

void NotesPanel::deleteMark() {
    if (!m_desk.record())
        return;
    if (!m_selected) {
        if (page())
            page()->removeCurrent();
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
    const auto shown = m_desk.moment();
    const std::optional<CMTime> now = shown        ? shown
                                      : m_selected ? std::optional(m_selected->time)
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
