#include "desktop/cross/cross_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/marking.h"

#include <QScopedValueRollback>

#include <limits>
#include <utility>

namespace kavela::desktop {

namespace {

/// Seconds by which two readings of one moment may differ.
constexpr double SameMoment = 1e-6;

} // namespace

const crossdata030& CrossDesk::cross() const {
    return document.cross();
}

std::optional<CMTime> CrossDesk::moment() const {
    const std::vector<CMTime> stamps = deck.stamps();
    return stamps.empty() ? std::nullopt : std::optional(stamps.front());
}

bool CrossDesk::hasFilm() const {
    return deck.cameras() > 0;
}

void CrossPage::whenMeant(std::function<void(const CMTime&)> act) {
    if (m_desk.hasFilm())
        m_desk.deck.whenMeant(
            [act = std::move(act)](const std::vector<CMTime>& stamps) { act(stamps.front()); },
            [this](const QString& why) { emit refused(why); });
    else
        emit refused(tr("There is no film to mark on."));
}

void CrossPage::edit(const QString& what, const std::function<void(crossdata030&)>& change) {
    m_desk.document.editCross(what, change);
}

/// Acts with the frame that is meant now, as soon as that is known.
void CrossPage::press(void (CrossPage::*act)(const CMTime&)) {
    if (!m_desk.hasFilm()) {
        refuse(film().isEmpty()
                   ? tr("There is no film to mark on.")
                   : tr("Nothing can be marked: %1 is not in the folder of the split file. File > "
                        "Where are the films now?")
                         .arg(film()));
        return;
    }
    m_desk.deck.whenMeant(
        [this, act](const std::vector<CMTime>& stamps) {
            const QScopedValueRollback<bool> pressed(m_isPressed, true);
            (this->*act)(stamps.front());
        },
        [this](const QString& why) { refuse(why); });
}

void CrossPage::markHere() {
    press(&CrossPage::mark);
}

void CrossPage::moveMarkHere() {
    press(&CrossPage::moveMark);
}

void CrossPage::nudgeMark(int frames) {
    const auto lines = marks();
    const auto selected = selectedMark();
    const auto mark = selected ? selected : lastMark();
    if (!mark || *mark >= lines.size()) {
        refuse(tr("No mark is selected. Ctrl and the arrows go from mark to mark."));
        return;
    }
    if (mark != selected)
        selectMark(*mark);
    const auto nudge = [this, stamp = lines[*mark].stamp, frames](const std::optional<CMTime>&) {
        moveMark(m_desk.deck.nudged(0, stamp, frames));
    };
    if (m_desk.deck.index(0))
        nudge({});
    else
        m_desk.deck.whenSettled(lines[*mark].stamp, nudge,
                                [this](const QString& why) { refuse(why); });
}

void CrossPage::dropMark(std::size_t number, double seconds) {
    const auto lines = marks();
    if (number >= lines.size())
        return;
    selectMark(number);
    m_desk.deck.whenSettled(
        seconds,
        [this, before = lines[number].stamp, seconds](const std::optional<CMTime>& frame) {
            moveMark(frame ? *frame : later(before, seconds - before.seconds()));
        },
        [this](const QString& why) { refuse(why); });
}

void CrossPage::goToMark(std::size_t number) {
    const auto lines = marks();
    if (number >= lines.size())
        return;
    selectMark(number);
    m_desk.deck.seek(lines[number].stamp);
}

/// The mark before or after where the film stands, also while its frame is still on its way;
/// without a film, beside the selected one.
bool CrossPage::stepMark(int step) {
    const auto lines = marks();
    const auto selected = selectedMark();
    std::optional<double> now;
    if (m_desk.hasFilm())
        now = m_desk.deck.position();
    else if (selected && *selected < lines.size())
        now = lines[*selected].stamp.seconds();
    std::optional<std::size_t> found;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t mark = 0; mark < lines.size(); ++mark) {
        const double way = now ? step * (lines[mark].stamp.seconds() - *now) : 0;
        const bool isAhead = !now || way > SameMoment;
        if (isAhead && way < least && stopsAt(mark)) {
            found = mark;
            least = way;
        }
    }
    if (found)
        goToMark(*found);
    return true;
}

} // namespace kavela::desktop
