#include "analysis/table_figures.h"

#include "analysis/analysis_rules.h"
#include "analysis/cell_text.h"
#include "analysis/percent_behind.h"
#include "analysis/run_place.h"
#include "common/number_text.h"
#include "common/percentile.h"
#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela {

TableFigures::TableFigures(const SplitTable& table)
    : m_values(table.columns.size()), m_sorted(table.columns.size()) {
    for (const TableRow& row : table.rows)
        m_runs.push_back(row.run);
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

void TableFigures::tellRun(std::string name, std::size_t row, std::size_t column, Why* why) const {
    constexpr std::size_t Closing = 3; // total, sprint, real
    if (!why || !m_runs[row])
        return;
    const bool isSection = column + Closing < m_values.size();
    why->input(std::move(name), value(row, column),
               runPlace(*m_runs[row], isSection ? std::optional(column + 1) : std::nullopt));
}

/// The least of a column, 0 where nothing counts.
double TableFigures::best(std::size_t column, Why* why) const {
    if (m_sorted[column].empty())
        return 0;
    const double least = m_sorted[column].front();
    if (why) {
        const auto row = static_cast<std::size_t>(std::ranges::find(m_values[column], least) -
                                                  m_values[column].begin());
        if (m_runs[row])
            tellRun("best: " + m_runs[row]->name, row, column, why);
    }
    return least;
}

std::optional<int> TableFigures::rank(std::size_t row, std::size_t column, Why* why) const {
    const double time = value(row, column);
    if (time == 0)
        return std::nullopt;
    const auto& sorted = m_sorted[column];
    const auto first =
        std::ranges::lower_bound(sorted, roundedToHundredths(time), {}, roundedToHundredths);
    const int rank = static_cast<int>(first - sorted.begin()) + 1;
    if (why) {
        tellRun("own", row, column, why);
        (void)best(column, why);
        why->input("faster", rank - 1);
        why->input("timed", static_cast<double>(sorted.size()));
        why->result(ruleOf(AnalysisRule::Rank), rank, std::to_string(rank));
    }
    return rank;
}

std::optional<double> TableFigures::percentBehind(std::size_t row, std::size_t column,
                                                  Why* why) const {
    tellRun("own", row, column, why);
    return percentBehindOf(value(row, column), column, why);
}

std::optional<double> TableFigures::percentBehindOf(double value, std::size_t column,
                                                    Why* why) const {
    if (value == 0 || m_sorted[column].empty())
        return std::nullopt;
    return kavela::percentBehind(value, best(column, why), why);
}

std::optional<double> TableFigures::percentile(std::size_t row, std::size_t column,
                                               Why* why) const {
    const double time = value(row, column);
    if (time == 0)
        return std::nullopt;
    const auto& sorted = m_sorted[column];
    const auto slowerOrEqual = sorted.end() - std::lower_bound(sorted.begin(), sorted.end(), time);
    const double share =
        100.0 * static_cast<double>(slowerOrEqual) / static_cast<double>(sorted.size());
    if (why) {
        tellRun("own", row, column, why);
        why->input("slower or equal", static_cast<double>(slowerOrEqual));
        why->input("timed", static_cast<double>(sorted.size()));
        why->result(ruleOf(AnalysisRule::Percentile), share, std::to_string(std::lround(share)));
    }
    return share;
}

double TableFigures::referenceValue(std::size_t column, const TableReference& reference,
                                    Why* why) const {
    const auto& sorted = m_sorted[column];
    switch (reference.kind) {
    case ReferenceKind::Best:
        return best(column, why);
    case ReferenceKind::Median: {
        const double median = sorted.empty() ? 0 : kavela::percentile(sorted, 0.5);
        if (Why* const part = why && median != 0 ? why->part() : nullptr) {
            part->input("values of the column", static_cast<double>(sorted.size()));
            part->result(ruleOf(AnalysisRule::MedianReference), median, hundredthsText(median));
        }
        if (why)
            why->input("median", median);
        return median;
    }
    case ReferenceKind::Run:
        if (reference.row >= m_values[column].size())
            return 0;
        if (why && m_runs[reference.row])
            tellRun("reference: " + m_runs[reference.row]->name, reference.row, column, why);
        return value(reference.row, column);
    case ReferenceKind::Values: {
        const double against = entryOrZero(reference.values, column);
        if (why)
            why->input(reference.name.empty() ? "ideal run" : "reference: " + reference.name,
                       against);
        return against;
    }
    }
    return 0;
}

std::optional<double> TableFigures::gap(std::size_t row, std::size_t column,
                                        const TableReference& reference, Why* why) const {
    tellRun("own", row, column, why);
    return gapOf(value(row, column), column, reference, why);
}

std::optional<double> TableFigures::gapOf(double value, std::size_t column,
                                          const TableReference& reference, Why* why) const {
    const double against = referenceValue(column, reference, why);
    if (value == 0 || against == 0)
        return std::nullopt;
    if (why)
        why->result(ruleOf(AnalysisRule::Gap), value - against, signedHundredths(value - against));
    return value - against;
}

} // namespace kavela
