#include "desktop/charts/chart.h"

#include "desktop/charts/chart_colours.h"

#include <algorithm>

namespace kavela::desktop {

QString runsText(std::size_t count) {
    return count == 1 ? Chart::tr("1 run") : Chart::tr("%n runs", nullptr, static_cast<int>(count));
}

Chart::Chart(QWidget* parent) : ChartFrame(parent) {}

void Chart::setRace(const ChartRace& race) {
    m_race = race;
    m_slots.clear();
    m_selectedCount = 0;
    showAgain([](int id) { return id >= 0; });
    fit();
    invalidate();
}

void Chart::setSelection(const std::vector<std::size_t>& runs) {
    std::set<std::size_t> chosen(runs.begin(), runs.end());
    chosen.erase(chosen.lower_bound(m_race.size()), chosen.end());
    m_selectedCount = chosen.size();
    std::erase_if(m_slots, [&](const auto& slot) { return !chosen.contains(slot.first); });
    std::set<std::size_t> taken;
    for (const auto& [run, slot] : m_slots)
        taken.insert(slot);
    std::size_t next = 0;
    for (const std::size_t run : chosen) {
        if (m_slots.contains(run))
            continue;
        while (taken.contains(next))
            ++next;
        if (next >= MostSeries)
            break;
        m_slots[run] = next++;
    }
    showAgain([&](int id) { return id >= 0 && !m_slots.contains(static_cast<std::size_t>(id)); });
    invalidate();
}

void Chart::setReference(const CourseReference& reference) {
    m_reference = reference;
    if (usesReference())
        invalidate();
}

void Chart::setPenaltiesIncluded(bool included) {
    if (included == m_penaltiesIncluded)
        return;
    m_penaltiesIncluded = included;
    invalidate();
}

std::vector<Chart::SelectedRun> Chart::selectedRuns() const {
    std::vector<SelectedRun> runs;
    for (const auto& [run, slot] : m_slots)
        runs.push_back({run, seriesStyle(slot, palette())});
    return runs;
}

QColor Chart::colourOf(std::size_t run) const {
    const auto slot = m_slots.find(run);
    return slot == m_slots.end() ? QColor() : seriesStyle(slot->second, palette()).colour;
}

QString Chart::leftOutNote() const {
    if (m_selectedCount <= m_slots.size())
        return {};
    return tr(" · %1 of %2 selected runs").arg(m_slots.size()).arg(m_selectedCount);
}

SeriesLabel Chart::labelOf(const SelectedRun& selected) const {
    SeriesLabel label;
    label.id = seriesId(selected.run);
    label.name = m_race.label(selected.run);
    label.style = selected.style;
    label.isHidden = !isShown(label.id);
    return label;
}

QString Chart::noRunsReason() const {
    return race().isFiltered() ? tr("The filter matches nobody. Change it to see runs again.")
                               : tr("Open a race to see its charts.");
}

} // namespace kavela::desktop
