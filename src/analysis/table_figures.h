#pragma once

#include "analysis/split_table.h"

#include <optional>
#include <string>
#include <vector>

/// What a coach reads off a cell beside its time: rank, gap, percent behind, percentile. A cell
/// that does not count has no figure, and none is held against it.
namespace kavela {

/// What the runs of a table are held against.
enum class ReferenceKind {
    Best,
    Median,
    Run,    ///< a run of the table
    Values, ///< what no run of the table paddled: the ideal run, a run of another race
};

struct TableReference {
    ReferenceKind kind = ReferenceKind::Best;
    std::size_t row = 0;             ///< of the run, for `Run`
    std::string name = {};           ///< whose values, for `Values`
    std::vector<double> values = {}; ///< seconds by column, 0 for none, for `Values`
};

/// The figures of every cell of a table. What a figure is made of is told with the runs of the
/// table, which have to be there then.
class TableFigures {
public:
    explicit TableFigures(const SplitTable& table);

    /// Place within the column, the smallest value being 1; values that look the same, to the
    /// hundredth, share a place.
    [[nodiscard]] std::optional<int> rank(std::size_t row, std::size_t column,
                                          Why* why = nullptr) const;
    /// Cells of a column that count.
    [[nodiscard]] std::size_t timed(std::size_t column) const { return m_sorted[column].size(); }
    /// Percent behind the column's best.
    [[nodiscard]] std::optional<double> percentBehind(std::size_t row, std::size_t column,
                                                      Why* why = nullptr) const;
    /// Share of the column's values that are slower or equal, in percent: 100 for the best.
    [[nodiscard]] std::optional<double> percentile(std::size_t row, std::size_t column,
                                                   Why* why = nullptr) const;
    /// Seconds behind the reference's value in the column; negative when faster.
    [[nodiscard]] std::optional<double> gap(std::size_t row, std::size_t column,
                                            const TableReference& reference,
                                            Why* why = nullptr) const;
    /// The same for a value of none of the table's runs, 0 being none.
    [[nodiscard]] std::optional<double> gapOf(double value, std::size_t column,
                                              const TableReference& reference,
                                              Why* why = nullptr) const;
    [[nodiscard]] std::optional<double> percentBehindOf(double value, std::size_t column,
                                                        Why* why = nullptr) const;

private:
    [[nodiscard]] double value(std::size_t row, std::size_t column) const;
    [[nodiscard]] double referenceValue(std::size_t column, const TableReference& reference,
                                        Why* why) const;
    [[nodiscard]] double best(std::size_t column, Why* why) const;
    void tellRun(std::string name, std::size_t row, std::size_t column, Why* why) const;

    std::vector<const analyzerdata*> m_runs;   ///< by row
    std::vector<std::vector<double>> m_values; ///< by column, then row; 0 where it does not count
    std::vector<std::vector<double>> m_sorted; ///< by column: those that count, ascending
};

} // namespace kavela
