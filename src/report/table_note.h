#pragma once

#include "report/table_view.h"

#include <QString>

namespace kavela::report {

/// What the cells of a table say and against which reference, and whether the times hold penalties.
/// `shownRuns` is how many of the race set the table shows.
[[nodiscard]] QString tableNote(const RaceSet& set, const TableSettings& settings,
                                const TableView& view, std::size_t shownRuns);

/// The name of a row beside the runs, with the race that it comes from.
[[nodiscard]] QString comparisonName(const ComparisonRow& row);

} // namespace kavela::report
