#include "splittaking/annotations/penalty_details.h"

#include "splittaking/annotations/film_marks.h"
#include "splittaking/course_setup.h"
#include "splittaking/penalties.h"

#include <algorithm>
#include <set>

namespace kavela {

namespace {

using Codes = std::vector<std::int64_t>;

pendata030& penaltyRecordOf(athletedata031& run, PenaltyHandle handle) {
    pendata030& record =
        entryOf(run.sectioninfo.pendetails, handle.record, "the record of penalties");
    if (handle.entry >= entriesIn(record))
        throw std::out_of_range("penalty " + std::to_string(handle.entry + 1) + " does not exist");
    return record;
}

GatePenalty penaltyOf(std::int64_t seconds) {
    if (seconds == 0)
        return GatePenalty::None;
    return seconds >= static_cast<std::int64_t>(GatePenalty::MissedGate) ? GatePenalty::MissedGate
                                                                         : GatePenalty::Touch;
}

bool isOnCourse(std::int64_t gate, std::int64_t gates) {
    return gate >= 1 && gate <= std::min(gates, MostGates);
}

void askForGate(std::int64_t gate, std::int64_t gates) {
    if (!isOnCourse(gate, gates))
        throw std::out_of_range("gate " + std::to_string(gate) + " is not on the course");
}

std::vector<PenaltyEntry> entriesAt(const athletedata031& run, std::int64_t gate) {
    std::vector<PenaltyEntry> entries = penaltyEntries(run);
    std::erase_if(entries,
                  [&](const PenaltyEntry& entry) { return entry[PenaltyField::Gate] != gate; });
    return entries;
}

std::int64_t secondsAt(const athletedata031& run, std::int64_t gate) {
    const Codes& pens = run.sectioninfo.pens;
    const auto place = static_cast<std::size_t>(gate - 1);
    return place < pens.size() ? pens[place] : 0;
}

/// The worst of the details at a gate. One whose kind the file does not tell, or in a way of a
/// later release, stands for what the gate has now.
std::int64_t secondsOfDetails(const athletedata031& run, std::int64_t gate) {
    std::int64_t worst = 0;
    for (const PenaltyEntry& entry : entriesAt(run, gate)) {
        const auto& kind = entry[PenaltyField::Kind];
        const auto known = kind ? penaltySecondsOf(*kind) : std::nullopt;
        worst = std::max(worst, known.value_or(secondsAt(run, gate)));
    }
    return worst;
}

void takeSecondsFromDetails(athletedata031& run, std::optional<std::int64_t> gate,
                            std::int64_t gates) {
    if (gate && isOnCourse(*gate, gates))
        setPenalty(run, *gate, penaltyOf(secondsOfDetails(run, *gate)), gates);
}

void eraseDetail(athletedata031& run, PenaltyHandle handle) {
    pendata030& record = penaltyRecordOf(run, handle);
    for (std::size_t field = 0; field < PenaltyFields; ++field)
        eraseEntry(listOf(record, static_cast<PenaltyField>(field)), handle.entry);
    if (entriesIn(record) == 0)
        eraseEntry(run.sectioninfo.pendetails, handle.record);
}

/// Takes out those of some entries that say the same as another one. Handles behind one that goes
/// are no longer good, so it begins with the last.
void eraseRepeated(athletedata031& run, const std::vector<PenaltyHandle>& handles) {
    for (auto handle = handles.rbegin(); handle != handles.rend(); ++handle) {
        const std::vector<PenaltyEntry> entries = penaltyEntries(run);
        const auto own = std::ranges::find(entries, *handle, &PenaltyEntry::handle);
        const bool isRepeated = std::ranges::any_of(entries, [&](const PenaltyEntry& other) {
            return other.handle != *handle && other.codes == own->codes;
        });
        if (isRepeated)
            eraseDetail(run, *handle);
    }
}

/// Changes the kinds that cost other seconds than the gate now has.
void changeKindsAt(athletedata031& run, std::int64_t gate, std::int64_t seconds) {
    const bool isTouch = penaltyOf(seconds) == GatePenalty::Touch;
    const auto code =
        static_cast<std::int64_t>(isTouch ? PenaltyKindCode::Touch : PenaltyKindCode::MissedGate);
    const std::vector<PenaltyEntry> entries = entriesAt(run, gate);
    std::vector<PenaltyHandle> changed;
    for (const PenaltyEntry& entry : entries) {
        const auto& kind = entry[PenaltyField::Kind];
        const auto known = kind ? penaltySecondsOf(*kind) : std::nullopt;
        if (known.value_or(seconds) == seconds ||
            (!isTouch && entry.handle != entries.back().handle))
            continue;
        pendata030& record = penaltyRecordOf(run, entry.handle);
        setPadded(listOf(record, PenaltyField::Kind), entry.handle.entry, code);
        changed.push_back(entry.handle);
    }
    eraseRepeated(run, changed);
}

} // namespace

PenaltyHandle addPenalty(athletedata031& run, const PenaltyDetail& detail, std::int64_t gates) {
    askForGate(detail.gate, gates);
    auto& records = run.sectioninfo.pendetails;
    if (records.empty())
        records.emplace_back();
    pendata030& record = records.back();
    const PenaltyHandle handle{records.size() - 1, entriesIn(record)};
    const std::array<std::int64_t, PenaltyFields> values{
        detail.gate,   detail.gatekind,  detail.penkind, detail.polekind, detail.penway,
        detail.moment, detail.direction, detail.style,   detail.eye};
    for (std::size_t k = 0; k < values.size(); ++k)
        setPadded(listOf(record, static_cast<PenaltyField>(k)), handle.entry, values[k]);
    takeSecondsFromDetails(run, detail.gate, gates);
    return handle;
}

void changePenalty(athletedata031& run, PenaltyHandle handle, PenaltyField field,
                   std::int64_t value, std::int64_t gates) {
    pendata030& record = penaltyRecordOf(run, handle);
    const std::optional<std::int64_t> gateBefore = penaltyEntry(record, handle)[PenaltyField::Gate];
    if (field == PenaltyField::Gate)
        askForGate(value, gates);
    setPadded(listOf(record, field), handle.entry, value);
    if (field == PenaltyField::Gate)
        takeSecondsFromDetails(run, value, gates);
    if (field == PenaltyField::Gate || field == PenaltyField::Kind)
        takeSecondsFromDetails(run, gateBefore, gates);
}

void removePenalty(athletedata031& run, PenaltyHandle handle, std::int64_t gates) {
    const std::optional<std::int64_t> gate =
        penaltyEntry(penaltyRecordOf(run, handle), handle)[PenaltyField::Gate];
    eraseDetail(run, handle);
    takeSecondsFromDetails(run, gate, gates);
}

void setPenaltyAndDetails(athletedata031& run, std::int64_t gate, std::int64_t seconds,
                          std::int64_t gates) {
    const GatePenalty penalty = penaltyOf(seconds);
    setPenalty(run, gate, penalty, gates);
    if (penalty == GatePenalty::None) {
        const std::vector<PenaltyEntry> entries = entriesAt(run, gate);
        for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry)
            eraseDetail(run, entry->handle);
    } else if (secondsOfDetails(run, gate) != static_cast<std::int64_t>(penalty)) {
        changeKindsAt(run, gate, seconds);
    }
}

std::vector<std::int64_t> gatesOutOfStep(const athletedata031& run, std::int64_t gates) {
    std::set<std::int64_t> detailed;
    for (const PenaltyEntry& entry : penaltyEntries(run))
        if (const auto& gate = entry[PenaltyField::Gate]; gate && isOnCourse(*gate, gates))
            detailed.insert(*gate);
    std::erase_if(detailed, [&](std::int64_t gate) {
        return secondsOfDetails(run, gate) == secondsAt(run, gate);
    });
    return {detailed.begin(), detailed.end()};
}

} // namespace kavela
