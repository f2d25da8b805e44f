#include "desktop/cross/place_after.h"
#include "desktop/cross/trials/gate_form.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/film/film_deck.h"
#include "desktop/splitfile/taking_document.h"

#include <algorithm>
#include <utility>

/// Which trial, mode, gate and mark of the page are in front.
namespace kavela::desktop {

namespace {

/// Positions change with the trials of others.
bool isSameTrial(const ttdata030& one, const ttdata030& other) {
    const auto isSameGate = [](const ttupstream030& gate, const ttupstream030& like) {
        return gate.gateNum == like.gateNum && gate.cmtimes == like.cmtimes;
    };
    return one.athlete == other.athlete && one.videoname == other.videoname &&
           one.time == other.time && one.splittimes == other.splittimes &&
           one.roll.cmtimes == other.roll.cmtimes &&
           std::ranges::equal(one.upstreams, other.upstreams, isSameGate);
}

bool isOfSameList(const TrialMark& one, const TrialMark& other) {
    return one.mode == other.mode && one.gate == other.gate;
}

/// Marks of one list are known by their moments. There is one start: a file tells its moment by the
/// last split, to which it is rounded.
bool isSameMoment(const TrialMark& one, const TrialMark& other) {
    const auto isStart = [](const TrialMark& mark) {
        return mark.mode == TrialMode::Splits && mark.place == 0;
    };
    if (isStart(one) || isStart(other))
        return isStart(one) && isStart(other);
    return isOfSameList(one, other) && one.stamp == other.stamp;
}

} // namespace

/// Looks for the trial in front in another content of the document; true when it is gone, so that
/// another one comes to the front as if it had been chosen.
bool TrialPage::followTrial() {
    const auto seen = std::exchange(m_seen, m_desk.document.value().cross);
    if (!seen || seen == m_seen || !m_trial)
        return false;
    const auto& was = seen->timetrials;
    const auto& trials = m_desk.cross().timetrials;
    const bool isInPlace = *m_trial < was.size() && was.size() == trials.size();
    const auto place = isInPlace ? m_trial : placeAfter(was, *m_trial, trials, isSameTrial);
    if (place) {
        m_trial = place;
        return false;
    }
    m_selected.reset();
    m_gate.reset();
    return true;
}

/// Keeps the selected mark only as long as it is the same one: keys must not act on what took its
/// place. What the page itself marks or moves is selected afterwards.
void TrialPage::followMark() {
    const auto marks = trialMarks();
    const auto before = std::exchange(m_seenMarks, marks);
    if (!m_selected)
        return;
    const auto was = std::ranges::find_if(
        before, [this](const TrialMark& mark) { return isSameMark(mark, *m_selected); });
    const auto place =
        placeAfter(before, static_cast<std::size_t>(was - before.begin()), marks, isSameMoment);
    if (place && isOfSameList(marks[*place], *m_selected))
        m_selected = marks[*place];
    else
        m_selected.reset();
}

void TrialPage::select(const TrialMark& mark) {
    m_selected = mark;
    m_mode = mark.mode;
    if (mark.mode == TrialMode::Upstreams)
        m_gate = mark.gate;
    showTrial();
    emit marksChanged();
}

void TrialPage::selectMark(std::size_t mark) {
    const auto marks = trialMarks();
    if (mark < marks.size())
        select(marks[mark]);
}

std::optional<std::size_t> TrialPage::lastMark() const {
    const auto splits =
        m_mode == TrialMode::Splits
            ? std::ranges::count(trialMarks(), TrialMode::Splits, &TrialMark::mode) // come first
            : 0;
    return splits > 0 ? std::optional(static_cast<std::size_t>(splits) - 1) : std::nullopt;
}

bool TrialPage::stopsAt(std::size_t mark) const {
    return trialMarks().at(mark).mode == m_mode;
}

void TrialPage::selectWhere(const std::function<bool(const TrialMark&)>& isIt) {
    const auto marks = trialMarks();
    const auto found = std::ranges::find_if(marks, isIt);
    if (found != marks.end())
        select(*found);
}

void TrialPage::forgetSelection() {
    if (!m_selected)
        return;
    m_selected.reset();
    showTrial();
    emit marksChanged();
}

void TrialPage::goTo(const TrialMark& mark) {
    select(mark);
    m_desk.deck.seek(mark.stamp);
}

void TrialPage::selectTrial(std::size_t trial) {
    if (trial >= m_desk.cross().timetrials.size() || m_trial == trial)
        return;
    m_desk.deck.finishPresses(); // they belong to the trial in front
    m_trial = trial;
    m_selected.reset();
    m_gate.reset();
    refresh();
    goOn();
    emit told({});
    emit filmChanged();
    emit marksChanged();
}

void TrialPage::setMode(TrialMode mode) {
    m_mode = mode;
    if (m_selected && m_selected->mode != mode)
        m_selected.reset();
    if (mode == TrialMode::Upstreams)
        bringGate();
    emit told({});
    showTrial();
    emit marksChanged();
}

void TrialPage::setGate(std::optional<std::int64_t> gate) {
    m_gate = gate;
    if (m_selected && m_selected->gate != gate.value_or(0))
        forgetSelection();
    showMode();
}

/// Brings a gate in front that is known as an upstream one, where any is, and not marked yet.
void TrialPage::bringGate() {
    const auto known = upstreamGates(m_desk.cross(), m_desk.document.info().upGates);
    if (!known.empty() && (!m_gate || std::ranges::find(known, *m_gate) == known.end()))
        m_gate = known.front();
    if (!nextGateMark())
        goOn();
}

/// Brings the first upstream gate in front that is not marked yet; without one the front stays.
void TrialPage::goOn() {
    const ttdata030* const trial = record();
    if (!trial)
        return;
    for (const std::int64_t gate : upstreamGates(m_desk.cross(), m_desk.document.info().upGates)) {
        const auto place = upstreamAt(*trial, gate);
        if (place && !nextMark(trial->upstreams[*place].cmtimes, m_gates->wantsMiddle()))
            continue;
        m_gate = gate;
        showMode();
        return;
    }
}

void TrialPage::stepRow(int step) {
    const auto trials = static_cast<std::ptrdiff_t>(m_desk.cross().timetrials.size());
    const auto trial = static_cast<std::ptrdiff_t>(m_trial.value_or(0)) + step;
    if (trial >= 0 && trial < trials)
        selectTrial(static_cast<std::size_t>(trial));
}

bool TrialPage::stepGate(int step) {
    const auto& gates = m_desk.cross().crossinfo.gates;
    if (gates.empty() || m_mode != TrialMode::Upstreams)
        return true;
    const auto front = m_gate ? std::ranges::find(gates, *m_gate) : gates.end();
    const std::ptrdiff_t place = front == gates.end() ? 0 : front - gates.begin() + step;
    if (place >= 0 && place < std::ssize(gates))
        setGate(gates[static_cast<std::size_t>(place)]);
    return true;
}

void TrialPage::pressNumber(int number) {
    const auto place = static_cast<std::size_t>(number);
    const auto& gates = m_desk.cross().crossinfo.gates;
    if (m_mode == TrialMode::Upstreams) {
        if (place <= gates.size())
            setGate(gates[place - 1]);
        return;
    }
    for (const TrialMark& mark : trialMarks()) {
        const bool isIt = m_mode == TrialMode::Splits
                              ? mark.place == place
                              : mark.which && static_cast<int>(*mark.which) == number - 1;
        if (mark.mode == m_mode && isIt) {
            goTo(mark);
            return;
        }
    }
}

} // namespace kavela::desktop
