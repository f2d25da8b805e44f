#include "facts/query_groups.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

std::uint64_t keyPart(const QueryColumn& column, const RowCursor& row) {
    if (column.isText())
        return column.key ? column.key(row) : column.text(row);
    const double number = column.number(row);
    return std::bit_cast<std::uint64_t>(std::isnan(number) ? NotKnown : number + 0.0);
}

std::size_t hashOfGroup(const GroupKey& key) {
    std::uint64_t hash = 0;
    for (const std::uint64_t part : key)
        hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

double medianOf(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    return (*middle + *std::max_element(values.begin(), middle)) / 2;
}

} // namespace

GroupKey groupKeyOf(const std::vector<const QueryColumn*>& by, const RowCursor& row) {
    GroupKey key{};
    for (std::size_t i = 0; i < by.size(); ++i)
        key[i] = keyPart(*by[i], row);
    return key;
}

std::size_t GroupPlaces::slotOf(const GroupKey& key) const {
    const std::size_t last = m_slots.size() - 1;
    std::size_t slot = hashOfGroup(key) & last;
    while (m_slots[slot] != 0 && m_keys[m_slots[slot] - 1] != key)
        slot = (slot + 1) & last;
    return slot;
}

/// Half of the slots stay free, so that none is looked for long.
void GroupPlaces::grow() {
    constexpr std::size_t FewestSlots = 64;
    m_slots.assign(std::max(FewestSlots, 2 * m_slots.size()), 0);
    for (std::size_t place = 0; place < m_keys.size(); ++place)
        m_slots[slotOf(m_keys[place])] = static_cast<std::uint32_t>(place + 1);
}

std::size_t GroupPlaces::placeOf(const GroupKey& key) {
    if (2 * (m_keys.size() + 1) > m_slots.size())
        grow();
    std::uint32_t& slot = m_slots[slotOf(key)];
    if (slot == 0) {
        m_keys.push_back(key);
        slot = static_cast<std::uint32_t>(m_keys.size());
    }
    return slot - 1;
}

RowGroups::RowGroups(std::vector<const QueryColumn*> by, const QueryColumn* measured)
    : m_by(std::move(by)),
      m_measured(measured),
      m_isByRun(std::ranges::none_of(
          m_by, [](const QueryColumn* column) { return column->level == ColumnLevel::Row; })) {}

std::size_t RowGroups::groupOf(const RowCursor& row) {
    if (m_groupOfRun)
        return *m_groupOfRun;
    const std::size_t place = m_places.placeOf(groupKeyOf(m_by, row));
    if (m_isByRun)
        m_groupOfRun = place;
    return place;
}

void RowGroups::add(const RowCursor& row, FoundRow found) {
    const std::size_t at = groupOf(row);
    if (at == m_groups.size()) {
        found.group = static_cast<std::uint32_t>(at);
        m_rows.push_back(found);
        m_values.emplace_back();
        FoundGroup& group = m_groups.emplace_back();
        for (const QueryColumn* const key : m_by)
            group.keys.push_back(foundValue(*key, row));
    }
    FoundGroup& group = m_groups[at];
    ++group.count;
    const double value = m_measured ? m_measured->number(row) : NotKnown;
    if (std::isnan(value))
        return;
    m_values[at].push_back(value);
    if (!(value >= group.best)) {
        group.best = value;
        m_rows[at].run = found.run;
        m_rows[at].entry = found.entry;
    }
}

void RowGroups::finish() {
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        std::vector<double>& values = m_values[i];
        if (values.empty())
            continue;
        m_groups[i].mean =
            std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
        m_groups[i].median = medianOf(values);
    }
}

} // namespace kavela
