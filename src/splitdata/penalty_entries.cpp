#include "splitdata/penalty_entries.h"

#include <algorithm>

namespace kavela {

namespace {

using Codes = std::vector<std::int64_t>;

constexpr std::array<Codes pendata030::*, PenaltyFields> PenaltyLists{
    &pendata030::gate,      &pendata030::gatekind, &pendata030::penkind,
    &pendata030::polekind,  &pendata030::penway,   &pendata030::moment,
    &pendata030::direction, &pendata030::style,    &pendata030::eye};

} // namespace

const std::vector<std::int64_t>& listOf(const pendata030& record, PenaltyField field) {
    return record.*PenaltyLists[static_cast<std::size_t>(field)];
}

std::vector<std::int64_t>& listOf(pendata030& record, PenaltyField field) {
    return record.*PenaltyLists[static_cast<std::size_t>(field)];
}

std::size_t entriesIn(const pendata030& record) {
    std::size_t count = 0;
    for (const auto list : PenaltyLists)
        count = std::max(count, (record.*list).size());
    return count;
}

PenaltyEntry penaltyEntry(const pendata030& record, PenaltyHandle handle) {
    PenaltyEntry entry{handle, {}};
    for (std::size_t k = 0; k < PenaltyLists.size(); ++k) {
        const Codes& list = record.*PenaltyLists[k];
        if (handle.entry < list.size())
            entry.codes[k] = list[handle.entry];
    }
    return entry;
}

std::optional<LabelList> labelListOf(PenaltyField field) {
    constexpr std::array Labels{LabelList::PenaltyGateKind, LabelList::PenaltyKind,
                                LabelList::PenaltyPole,     LabelList::PenaltyWay,
                                LabelList::PenaltyMoment,   LabelList::PenaltyDirection,
                                LabelList::PenaltyStyle,    LabelList::PenaltyEye};
    if (field == PenaltyField::Gate)
        return std::nullopt;
    return Labels[static_cast<std::size_t>(field) - 1];
}

std::vector<PenaltyEntry> penaltyEntries(const athletedata031& run) {
    std::vector<PenaltyEntry> entries;
    const auto& records = run.sectioninfo.pendetails;
    for (std::size_t r = 0; r < records.size(); ++r)
        for (std::size_t k = 0; k < entriesIn(records[r]); ++k)
            entries.push_back(penaltyEntry(records[r], {r, k}));
    return entries;
}

} // namespace kavela
