#include "analysis/table_figures.h"

#include "analysis/percent_behind.h"
#include "common/number_text.h"
#include "common/percentile.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

TableFigures::TableFigures(const SplitTable& table)
    : m_values(table.columns.size()), m_sorted(table.columns.size()) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        for (const TableRow& row : table.rows) {
            const TableCell& cell = row.cells[column];
            m_values[column].push_back(cell.standing == TimeStanding::Counts ? cell.value : 0);
        }
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
    const auto first =
        std::ranges::lower_bound(sorted, roundedToHundredths(time), {}, roundedToHundredths);
    return static_cast<int>(first - sorted.begin()) + 1;
}

std::optional<double> TableFigures::percentBehind(std::size_t row, std::size_t column) const {
    return percentBehindOf(value(row, column), column);
}

std::optional<double> TableFigures::percentBehindOf(double value, std::size_t column) const {
    if (value == 0 || m_sorted[column].empty())
        return std::nullopt;
    return kavela::percentBehind(value, m_sorted[column].front());
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
    case ReferenceKind::Values:
        return entryOrZero(reference.values, column);
    }
    return 0;
}

std::optional<double> TableFigures::gap(std::size_t row, std::size_t column,
                                        const TableReference& reference) const {
    return gapOf(value(row, column), column, reference);
}

std::optional<double> TableFigures::gapOf(double value, std::size_t column,
                                          const TableReference& reference) const {
    const double against = referenceValue(column, reference);
    if (value == 0 || against == 0)
        return std::nullopt;
    return value - against;
}

} // namespace kavela
