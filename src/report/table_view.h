#pragma once

#include "analysis/cell_text.h"

#include <optional>
#include <vector>

namespace kavela::report {

/// What may stand between the name of a run and its times.
enum class RunColumn { Phase, Category, Place };

/// What of the split table goes onto paper, as a window shows it. The defaults show all of it, in
/// the order of the file, under the titles of phases and categories.
struct TableView {
    /// Columns of times, by their index in the table, in the order in which they stand. Those that
    /// the table does not have are left out.
    std::optional<std::vector<std::size_t>> columns = std::nullopt;
    /// Runs, by their index in the race set, in the order in which they stand. Titles part them as
    /// long as each phase and category stays together; a mixed order has none.
    std::optional<std::vector<std::size_t>> rows = std::nullopt;
    /// Phase and category stand in the rows only where no titles tell them.
    std::vector<RunColumn> runColumns = {};
    CellContent content = CellContent::Time;
    TableReference reference = {};
    ColourScale scale = ColourScale::GreenRed;
    /// Rows above the runs; one without a name is the ideal run.
    std::vector<ComparisonRow> comparisons = {};
};

} // namespace kavela::report
