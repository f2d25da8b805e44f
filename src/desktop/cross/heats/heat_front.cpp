#include "desktop/cross/heats/heat_front.h"

#include "desktop/cross/place_after.h"
#include "splittaking/annotations/cross_heats.h"

#include <algorithm>
#include <functional>

namespace kavela::desktop {

namespace {

bool isSameOrder(const generaldata030& one, const generaldata030& other) {
    return one.gate == other.gate && one.time == other.time;
}

bool isSameAttack(const actiondata030& one, const actiondata030& other) {
    return one.time == other.time && one.attacker == other.attacker &&
           one.defenders == other.defenders;
}

bool isSameHeat(const rounddata030& one, const rounddata030& other) {
    return one.athletes == other.athletes && one.videoname == other.videoname &&
           std::ranges::equal(one.generals, other.generals, isSameOrder) &&
           std::ranges::equal(one.actions, other.actions, isSameAttack);
}

/// The gate in front is known by its number; an order not taken yet goes with it.
void followGate(HeatFront& front, const std::vector<std::int64_t>& before,
                const std::vector<std::int64_t>& gates) {
    if (before == gates || front.gate >= before.size())
        return;
    const auto found = std::ranges::find(gates, before[front.gate]);
    if (found != gates.end())
        front.gate = static_cast<std::size_t>(found - gates.begin());
    else
        front.draft.reset();
}

std::optional<HeatMark> followedMark(const HeatMark& was, const rounddata030& before,
                                     const rounddata030& heat) {
    if (was.isOrder) {
        const auto place = placeAfter(before.generals, was.record, heat.generals, isSameOrder);
        if (place && heat.generals[*place].gate == before.generals[was.record].gate)
            return HeatMark{true, *place, 0};
        return std::nullopt;
    }
    const auto place = placeAfter(before.actions, was.record, heat.actions, isSameAttack);
    if (!place)
        return std::nullopt;
    const auto entry = was.entry == 0
                           ? std::optional<std::size_t>(0)
                           : placeAfter(before.actions[was.record].time, was.entry,
                                        heat.actions[*place].time, std::equal_to<CMTime>());
    return entry ? std::optional(HeatMark{false, *place, *entry}) : std::nullopt;
}

} // namespace

void HeatFront::dropDraft() {
    draft.reset();
    naming = Naming::Nothing;
}

HeatFront openedHeat(const crossdata030& cross, std::optional<std::size_t> heat) {
    HeatFront front{.heat = heat, .selected = {}, .draft = {}};
    if (!heat || *heat >= cross.eliphase.size())
        return front;
    const rounddata030& opened = cross.eliphase[*heat];
    const auto& gates = cross.crossinfo.gates;
    const auto open = std::ranges::find_if(
        gates, [&](std::int64_t gate) { return !orderAt(opened, gate).has_value(); });
    front.gate = open == gates.end() ? 0 : static_cast<std::size_t>(open - gates.begin());
    return front;
}

HeatFront followedFront(HeatFront front, const crossdata030& before, const crossdata030& now) {
    front.naming = HeatFront::Naming::Nothing;
    followGate(front, before.crossinfo.gates, now.crossinfo.gates);
    if (!front.heat)
        return front;
    const auto& was = before.eliphase;
    const auto& heats = now.eliphase;
    const bool isInPlace = *front.heat < was.size() && was.size() == heats.size();
    const auto place = isInPlace ? front.heat : placeAfter(was, *front.heat, heats, isSameHeat);
    if (!place)
        return openedHeat(now, heats.empty()
                                   ? std::nullopt
                                   : std::optional(std::min(*front.heat, heats.size() - 1)));
    if (front.selected)
        front.selected = followedMark(*front.selected, was[*front.heat], heats[*place]);
    front.heat = place;
    return front;
}

} // namespace kavela::desktop
