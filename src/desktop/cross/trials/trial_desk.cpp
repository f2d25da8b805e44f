#include "desktop/cross/trials/trial_desk.h"

#include "desktop/cross/place_after.h"
#include "desktop/film/film_deck.h"
#include "desktop/splitfile/taking_document.h"

#include <algorithm>
#include <utility>

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

TrialDesk::TrialDesk(const CrossDesk& desk) : m_desk(desk) {}

const ttdata030* TrialDesk::trial() const {
    const auto& trials = m_desk.cross().timetrials;
    return m_trial && *m_trial < trials.size() ? &trials[*m_trial] : nullptr;
}

const ttupstream030* TrialDesk::upstream() const {
    const ttdata030* const record = trial();
    const auto place = record && m_gate ? upstreamAt(*record, *m_gate) : std::nullopt;
    return place ? &record->upstreams[*place] : nullptr;
}

std::optional<GateMark> TrialDesk::nextGateMark() const {
    if (m_mode == TrialMode::Roll)
        return trial() ? nextMark(trial()->roll.cmtimes, true) : std::nullopt;
    if (!m_gate)
        return std::nullopt;
    return upstream() ? nextMark(upstream()->cmtimes, m_wantsMiddle) : GateMark::Entrance;
}

RunMarks TrialDesk::runMarks() const {
    if (!trial())
        return {};
    RunMarks marks = marksOf(*trial());
    if (std::ranges::all_of(marks.marks, &Stamps::empty))
        marks.marks.clear(); // an older file has one empty split for none
    const TrialStarts& starts = m_desk.document.trialStarts();
    if (const auto start = starts.find(*m_trial); start != starts.end() && !marks.start)
        marks.start = Stamps{start->second};
    return marks;
}

std::vector<TrialMark> TrialDesk::marks() const {
    return trial() ? marksOfTrial(*trial(), runMarks()) : std::vector<TrialMark>();
}

std::optional<std::size_t> TrialDesk::selectedMark() const {
    const auto all = marks();
    for (std::size_t place = 0; m_selected && place < all.size(); ++place)
        if (isSameMark(all[place], *m_selected))
            return place;
    return std::nullopt;
}

bool TrialDesk::follow() {
    const auto& trials = m_desk.cross().timetrials;
    if (m_path != m_desk.document.path()) {
        m_path = m_desk.document.path();
        m_trial.reset();
    }
    const bool isOther = followTrial();
    if (trials.empty())
        m_trial.reset();
    else
        m_trial = std::min(m_trial.value_or(0), trials.size() - 1);
    followMark();
    followGate();
    return isOther;
}

bool TrialDesk::followTrial() {
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
void TrialDesk::followMark() {
    const auto now = marks();
    const auto before = std::exchange(m_seenMarks, now);
    if (!m_selected)
        return;
    const auto was = std::ranges::find_if(
        before, [this](const TrialMark& mark) { return isSameMark(mark, *m_selected); });
    const auto place =
        placeAfter(before, static_cast<std::size_t>(was - before.begin()), now, isSameMoment);
    if (place && isOfSameList(now[*place], *m_selected))
        m_selected = now[*place];
    else
        m_selected.reset();
}

void TrialDesk::followGate() {
    const auto& gates = m_desk.cross().crossinfo.gates;
    const bool isGone = m_gate && !upstream() && std::ranges::find(gates, *m_gate) == gates.end();
    if (!m_gate || isGone)
        m_gate = gates.empty() ? std::nullopt : std::optional(gates.front());
}

void TrialDesk::open(std::size_t trial) {
    m_trial = trial;
    m_selected.reset();
    m_gate.reset();
}

void TrialDesk::select(const TrialMark& mark) {
    m_selected = mark;
    m_mode = mark.mode;
    if (mark.mode == TrialMode::Upstreams)
        m_gate = mark.gate;
    emit trialChanged();
    emit marksChanged();
}

void TrialDesk::selectWhere(const std::function<bool(const TrialMark&)>& isIt) {
    const auto all = marks();
    const auto found = std::ranges::find_if(all, isIt);
    if (found != all.end())
        select(*found);
}

void TrialDesk::forgetSelection() {
    if (!m_selected)
        return;
    m_selected.reset();
    emit trialChanged();
    emit marksChanged();
}

void TrialDesk::goTo(const TrialMark& mark) {
    select(mark);
    m_desk.deck.seek(mark.stamp);
}

void TrialDesk::setMode(TrialMode mode) {
    m_mode = mode;
    if (m_selected && m_selected->mode != mode)
        m_selected.reset();
    if (mode == TrialMode::Upstreams)
        bringGate();
    emit told({});
    emit trialChanged();
    emit marksChanged();
}

void TrialDesk::setGate(std::optional<std::int64_t> gate) {
    m_gate = gate;
    if (m_selected && m_selected->gate != gate.value_or(0))
        forgetSelection();
    emit frontChanged();
}

/// Brings a gate in front that is known as an upstream one, where any is, and not marked yet.
void TrialDesk::bringGate() {
    const auto known = upstreamGates(m_desk.cross(), m_desk.document.info().upGates);
    if (!known.empty() && (!m_gate || std::ranges::find(known, *m_gate) == known.end()))
        m_gate = known.front();
    if (!nextGateMark())
        goOn();
}

void TrialDesk::goOn() {
    const ttdata030* const record = trial();
    if (!record)
        return;
    for (const std::int64_t gate : upstreamGates(m_desk.cross(), m_desk.document.info().upGates)) {
        const auto place = upstreamAt(*record, gate);
        if (place && !nextMark(record->upstreams[*place].cmtimes, m_wantsMiddle))
            continue;
        m_gate = gate;
        emit frontChanged();
        return;
    }
}

void TrialDesk::setWantsMiddle(bool wantsMiddle) {
    m_wantsMiddle = wantsMiddle;
    emit frontChanged();
}

void TrialDesk::edit(const QString& what, const std::function<void(ttdata030&)>& change) {
    if (trial())
        m_desk.document.editCross(
            what, [&](crossdata030& cross) { change(cross.timetrials.at(*m_trial)); });
}

/// A start without a split stands beside the document, the rest in the trial.
void TrialDesk::setRunMarks(const QString& what, const RunMarks& marks) {
    const bool hasSplit =
        std::ranges::any_of(marks.marks, [](const Stamps& stamps) { return !stamps.empty(); });
    const bool hasStart = marks.start && !marks.start->empty();
    TrialStarts starts = m_desk.document.trialStarts();
    starts.erase(*m_trial);
    if (hasStart && !hasSplit)
        starts.emplace(*m_trial, marks.start->front());
    const bool isInTrial = marks.marks != trial()->splittimes || hasSplit;
    if (!isInTrial && starts == m_desk.document.trialStarts())
        return;
    m_desk.document.editCross(what, std::move(starts), [&](crossdata030& cross) {
        if (!isInTrial)
            return;
        applyMarks(marks, cross.timetrials.at(*m_trial));
        rankTrials(cross);
    });
}

} // namespace kavela::desktop
