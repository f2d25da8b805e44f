#include "facts/query_groups.h"

#include "common/parallel.h"

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

RowGroups::RowGroups(std::vector<const QueryColumn*> by, const QueryColumn* measured)
    : m_by(std::move(by)), m_measured(measured) {
    for (std::size_t i = 0; i < m_by.size(); ++i)
        if (m_by[i]->level == ColumnLevel::Row)
            m_rowParts.push_back(i);
}

std::size_t RowGroups::groupOf(const RowCursor& row) {
    if (m_groupOfRun)
        return *m_groupOfRun;
    if (!m_hasRunKey) {
        m_runKey = groupKeyOf(m_by, row);
        m_hasRunKey = true;
    } else {
        for (const std::size_t part : m_rowParts)
            m_runKey[part] = keyPart(*m_by[part], row);
    }
    const std::size_t place = m_places.placeOf(m_runKey);
    if (m_rowParts.empty())
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

void RowGroups::add(RowGroups&& later) {
    for (std::size_t i = 0; i < later.m_groups.size(); ++i) {
        const std::size_t at = m_places.placeOf(later.m_places.keys()[i]);
        FoundGroup& added = later.m_groups[i];
        if (at == m_groups.size()) {
            m_rows.push_back(later.m_rows[i]);
            m_rows.back().group = static_cast<std::uint32_t>(at);
            m_values.push_back(std::move(later.m_values[i]));
            m_groups.push_back(std::move(added));
            continue;
        }
        FoundGroup& group = m_groups[at];
        group.count += added.count;
        if (!std::isnan(added.best) && !(added.best >= group.best)) {
            group.best = added.best;
            m_rows[at].run = later.m_rows[i].run;
            m_rows[at].entry = later.m_rows[i].entry;
        }
        m_later.resize(m_groups.size());
        m_later[at].push_back(std::move(later.m_values[i]));
    }
}

void RowGroups::finishGroup(std::size_t at) {
    std::vector<double>& values = m_values[at];
    if (at < m_later.size())
        for (const std::vector<double>& later : m_later[at])
            values.insert(values.end(), later.begin(), later.end());
    if (values.empty())
        return;
    m_groups[at].mean =
        std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
    m_groups[at].median = medianOf(values);
}

void RowGroups::finish() {
    if (m_later.empty())
        for (std::size_t at = 0; at < m_groups.size(); ++at)
            finishGroup(at);
    else // of many rows
        parallelFor(m_groups.size(), [this](std::size_t at) { finishGroup(at); });
}

} // namespace kavela
