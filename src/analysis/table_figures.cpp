#include "analysis/table_figures.h"

#include "analysis/percent_behind.h"
#include "common/percentile.h"

#include <algorithm>

namespace kavela {

TableFigures::TableFigures(const SplitTable& table)
    : m_values(table.columns.size()), m_sorted(table.columns.size()) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        for (const TableRow& row : table.rows)
            m_values[column].push_back(row.cells[column].value);
        m_sorted[column] = m_values[column];
        std::erase(m_sorted[column], 0.0);
        std::sort(m_sorted[column].begin(), m_sorted[column].end());
    }
}

double TableFigures::value(std::size_t row, std::size_t column) const {
    return m_values[column][row];
}

std::optional<int> TableFigures::rank(std::size_t row, std::size_t column) const {
    const double time = value(row, column);
    if (time == 0)
        return std::nullopt;
    const auto& sorted = m_sorted[column];
    return static_cast<int>(std::lower_bound(sorted.begin(), sorted.end(), time) - sorted.begin()) +
           1;
}

std::optional<double> TableFigures::percentBehind(std::size_t row, std::size_t column) const {
    const double time = value(row, column);
    if (time == 0)
        return std::nullopt;
    return kavela::percentBehind(time, m_sorted[column].front());
}

std::optional<double> TableFigures::percentile(std::size_t row, std::size_t column) const {
    const double time = value(row, column);
    if (time == 0)
        return std::nullopt;
    const auto& sorted = m_sorted[column];
    const auto slowerOrEqual = sorted.end() - std::lower_bound(sorted.begin(), sorted.end(), time);
    return 100.0 * static_cast<double>(slowerOrEqual) / static_cast<double>(sorted.size());
}

double TableFigures::referenceValue(std::size_t column, const TableReference& reference) const {
    const auto& sorted = m_sorted[column];
    switch (reference.kind) {
    case ReferenceKind::Best:
        return sorted.empty() ? 0 : sorted.front();
    case ReferenceKind::Median:
        return sorted.empty() ? 0 : kavela::percentile(sorted, 0.5);
    case ReferenceKind::Run:
        return reference.row < m_values[column].size() ? value(reference.row, column) : 0;
    }
    return 0;
}

std::optional<double> TableFigures::gap(std::size_t row, std::size_t column,
                                        const TableReference& reference) const {
    const double time = value(row, column);
    const double against = referenceValue(column, reference);
    if (time == 0 || against == 0)
        return std::nullopt;
    return time - against;
}

} // namespace kavela
