#pragma once

#include "analysis/comparison_row.h"
#include "analysis/table_figures.h"

#include <string>

/// What stands in the cells of the split table, on the screen and on paper.
namespace kavela {

/// What the cells say. The colours always follow the times.
enum class CellContent {
    Time,
    Gap, ///< seconds to the reference, with a sign
    Rank,
    PercentBehind,
    Percentile,
};

/// The figure of a run's cell, rounded as it is shown and written with a point, without units:
/// what a spreadsheet takes as a number. Empty where there is none.
[[nodiscard]] std::string cellNumber(const SplitTable& table, const TableFigures& figures,
                                     std::size_t row, std::size_t column, CellContent content,
                                     const TableReference& reference);

/// The text of a run's cell; a dash for a figure that there is none of. The figures are those of
/// the table. Figures are told; a time is what splitCell() tells.
[[nodiscard]] std::string cellText(const SplitTable& table, const TableFigures& figures,
                                   std::size_t row, std::size_t column, CellContent content,
                                   const TableReference& reference, Why* why = nullptr);

/// The text of a cell in a row beside the runs, which takes neither place nor percentile.
[[nodiscard]] std::string comparisonText(const ComparisonRow& row, const TableFigures& figures,
                                         std::size_t column, CellContent content,
                                         const TableReference& reference, Why* why = nullptr);

/// The same as a number.
[[nodiscard]] std::string comparisonNumber(const ComparisonRow& row, const TableFigures& figures,
                                           std::size_t column, CellContent content,
                                           const TableReference& reference);

/// Hundredths with a plus in front of what is more than 0: "+0.25", "-0.25", "0.00".
[[nodiscard]] std::string signedHundredths(double seconds);

} // namespace kavela
