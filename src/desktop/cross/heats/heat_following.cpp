#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/place_after.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/annotations/cross_heats.h"

#include <algorithm>
#include <functional>
#include <utility>

/// What stays in front when the document has another content. Edits of the page bring what they
/// select with them; after any other, such as undoing, the heat, gate and mark in front are looked
/// for, and given up when they are gone: keys must not act on what took their place.
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

} // namespace

/// Other contents may have fewer heats, gates, boats and marks.
void HeatPage::checkState() {
    const auto seen = std::exchange(m_seen, m_desk.document.value().cross);
    if (seen && seen != m_seen && !m_isEditing)
        follow(*seen);
    const std::size_t heats = m_desk.cross().eliphase.size();
    if (heats == 0)
        openHeat(std::nullopt);
    else if (!m_heat || *m_heat >= heats)
        openHeat(m_heat ? heats - 1 : 0);
    m_gate = std::min(m_gate, std::max<std::size_t>(course().gates.size(), 1) - 1);
    if (m_selected && !exists(*m_selected)) {
        m_selected.reset();
        m_naming = Naming::Nothing;
    }
    const auto isKnown = [&](const std::string& name) {
        const auto record = orderInFront();
        return std::ranges::count(current()->athletes, name) > 0 ||
               (record && std::ranges::count(current()->generals[*record].order, name) > 0);
    };
    if (m_draft && (!current() || !std::ranges::all_of(*m_draft, isKnown)))
        m_draft.reset();
}

void HeatPage::follow(const crossdata030& before) {
    m_naming = Naming::Nothing;
    followGate(before.crossinfo.gates);
    if (!m_heat)
        return;
    const auto& was = before.eliphase;
    const auto& heats = m_desk.cross().eliphase;
    const bool isInPlace = *m_heat < was.size() && was.size() == heats.size();
    const auto place = isInPlace ? m_heat : placeAfter(was, *m_heat, heats, isSameHeat);
    if (!place) {
        openHeat(heats.empty() ? std::nullopt : std::optional(std::min(*m_heat, heats.size() - 1)));
        return;
    }
    const rounddata030& heat = was[*m_heat];
    m_heat = place;
    followMark(heat);
}

/// The gate in front is known by its number; an order not taken yet goes with it.
void HeatPage::followGate(const std::vector<std::int64_t>& before) {
    const auto& gates = course().gates;
    if (before == gates || m_gate >= before.size())
        return;
    const auto found = std::ranges::find(gates, before[m_gate]);
    if (found != gates.end())
        m_gate = static_cast<std::size_t>(found - gates.begin());
    else
        m_draft.reset();
}

void HeatPage::followMark(const rounddata030& before) {
    if (!m_selected)
        return;
    const HeatMark was = *m_selected;
    m_selected.reset();
    if (was.isOrder) {
        const auto& orders = current()->generals;
        const auto place = placeAfter(before.generals, was.record, orders, isSameOrder);
        if (place && orders[*place].gate == before.generals[was.record].gate)
            m_selected = HeatMark{true, *place, 0};
        return;
    }
    const auto& attacks = current()->actions;
    const auto place = placeAfter(before.actions, was.record, attacks, isSameAttack);
    if (!place)
        return;
    const auto entry = was.entry == 0 ? std::optional<std::size_t>(0)
                                      : placeAfter(before.actions[was.record].time, was.entry,
                                                   attacks[*place].time, std::equal_to<CMTime>());
    if (entry)
        m_selected = HeatMark{false, *place, *entry};
}

} // namespace kavela::desktop
