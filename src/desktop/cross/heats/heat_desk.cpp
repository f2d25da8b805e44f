#include "desktop/cross/heats/heat_desk.h"

#include "desktop/film/film_deck.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/annotations/cross_heats.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kavela::desktop {

HeatDesk::HeatDesk(const CrossDesk& desk, const QWidget& page) : m_desk(desk), m_page(page) {}

const rounddata030* HeatDesk::heat() const {
    const auto& heats = m_desk.cross().eliphase;
    return m_front.heat && *m_front.heat < heats.size() ? &heats[*m_front.heat] : nullptr;
}

std::optional<std::int64_t> HeatDesk::gate() const {
    const auto& gates = course().gates;
    return m_front.gate < gates.size() ? std::optional(gates[m_front.gate]) : std::nullopt;
}

std::optional<std::size_t> HeatDesk::placeOnCourse(std::int64_t gate) const {
    const auto& gates = course().gates;
    const auto found = std::ranges::find(gates, gate);
    if (found == gates.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - gates.begin());
}

const actiondata030* HeatDesk::attack() const {
    const auto& mark = m_front.selected;
    if (!heat() || !mark || mark->isOrder || mark->record >= heat()->actions.size())
        return nullptr;
    return &heat()->actions[mark->record];
}

std::vector<BoatLook> HeatDesk::looks() const {
    return heat() ? boatLooks(heat()->athletes, palette()) : std::vector<BoatLook>();
}

std::optional<std::size_t> HeatDesk::strayOrder() const {
    const auto& mark = m_front.selected;
    if (!mark || !mark->isOrder || !heat())
        return std::nullopt;
    const std::int64_t at = heat()->generals.at(mark->record).gate;
    if (placeOnCourse(at) && orderAt(*heat(), at) == mark->record)
        return std::nullopt;
    return mark->record;
}

std::optional<std::size_t> HeatDesk::orderInFront() const {
    if (const auto stray = strayOrder())
        return stray;
    return heat() && gate() ? orderAt(*heat(), *gate()) : std::nullopt;
}

HeatDesk::Names HeatDesk::offeredOrder() const {
    Names offered;
    if (!heat() || !gate())
        return offered;
    for (const std::string& name : likelyOrder(*heat(), course(), *gate()))
        if (std::ranges::count(heat()->athletes, name) > 0 &&
            std::ranges::count(offered, name) == 0)
            offered.push_back(name);
    return offered;
}

HeatDesk::Names HeatDesk::shownOrder() const {
    if (m_front.draft)
        return *m_front.draft;
    const auto record = orderInFront();
    return record ? heat()->generals[*record].order : offeredOrder();
}

/// Marks without a moment are none.
std::vector<HeatMark> HeatDesk::marks() const {
    std::vector<HeatMark> marks;
    const auto add = [&](const HeatMark& mark) {
        if (momentOf(mark))
            marks.push_back(mark);
    };
    for (std::size_t order = 0; heat() && order < heat()->generals.size(); ++order)
        add({true, order, 0});
    for (std::size_t attack = 0; heat() && attack < heat()->actions.size(); ++attack)
        for (std::size_t entry = 0; entry < heat()->actions[attack].time.size(); ++entry)
            add({false, attack, entry});
    return marks;
}

/// An attack that has no moment yet has its start all the same.
bool HeatDesk::exists(const HeatMark& mark) const {
    if (!heat())
        return false;
    if (mark.isOrder)
        return mark.record < heat()->generals.size();
    return mark.record < heat()->actions.size() &&
           (mark.entry == 0 || mark.entry < heat()->actions[mark.record].time.size());
}

std::optional<CMTime> HeatDesk::momentOf(const HeatMark& mark) const {
    if (!exists(mark))
        return std::nullopt;
    CMTime moment;
    if (mark.isOrder)
        moment = heat()->generals[mark.record].time;
    else if (mark.entry < heat()->actions[mark.record].time.size())
        moment = heat()->actions[mark.record].time[mark.entry];
    return isTaken(moment) ? std::optional(moment) : std::nullopt;
}

void HeatDesk::open(std::optional<std::size_t> heat) {
    m_front = openedHeat(m_desk.cross(), heat);
}

void HeatDesk::select(const std::optional<HeatMark>& mark) {
    m_front.selected = mark;
    m_front.naming = HeatFront::Naming::Nothing;
    if (mark && mark->isOrder) {
        m_front.draft.reset();
        const std::int64_t at = heat()->generals[mark->record].gate;
        if (gate() != at)
            m_front.gate = placeOnCourse(at).value_or(m_front.gate);
    }
    emit selected();
}

void HeatDesk::goTo(const HeatMark& mark) {
    if (!exists(mark))
        return;
    select(mark);
    if (const auto moment = momentOf(mark))
        m_desk.deck.seek(*moment);
}

void HeatDesk::draft(std::optional<Names> order, HeatFront::Naming naming) {
    m_front.draft = std::move(order);
    m_front.naming = naming;
}

void HeatDesk::edit(const QString& what, const CrossChange& change) {
    try {
        const QScopedValueRollback<bool> isEditing(m_isEditing, true);
        m_desk.document.editCross(what, [&](crossdata030& cross) { change(cross, m_front); });
        m_seen = m_desk.document.value().cross;
        emit told({}); // what was told before is over
    } catch (const std::invalid_argument& refused) {
        emit told(QString::fromUtf8(refused.what()));
    }
}

void HeatDesk::editHeat(const QString& what, const Change& change) {
    if (heat())
        edit(what, [&](crossdata030& cross, HeatFront& front) {
            change(cross.eliphase.at(*front.heat), front);
        });
}

void HeatDesk::follow() {
    const auto seen = std::exchange(m_seen, m_desk.document.value().cross);
    if (seen && seen != m_seen && !m_isEditing)
        m_front = followedFront(std::move(m_front), *seen, *m_seen);
    keepWithin();
}

void HeatDesk::keepWithin() {
    const std::size_t heats = m_desk.cross().eliphase.size();
    if (heats == 0)
        open(std::nullopt);
    else if (!m_front.heat || *m_front.heat >= heats)
        open(m_front.heat ? heats - 1 : 0);
    m_front.gate = std::min(m_front.gate, std::max<std::size_t>(course().gates.size(), 1) - 1);
    if (m_front.selected && !exists(*m_front.selected)) {
        m_front.selected.reset();
        m_front.naming = HeatFront::Naming::Nothing;
    }
    const auto isKnown = [&](const std::string& name) {
        const auto record = orderInFront();
        return std::ranges::count(heat()->athletes, name) > 0 ||
               (record && std::ranges::count(heat()->generals[*record].order, name) > 0);
    };
    if (m_front.draft && (!heat() || !std::ranges::all_of(*m_front.draft, isKnown)))
        m_front.draft.reset();
}

} // namespace kavela::desktop
