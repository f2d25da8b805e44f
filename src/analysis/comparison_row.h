#pragma once

#include "analysis/split_table.h"

#include <string>
#include <vector>

/// Rows beside the runs of a split table, which the runs are held against without being compared
/// with them: they take no part in colours, places or bests.
namespace kavela {

struct ComparisonRow {
    std::string name;
    std::string origin; ///< the race it comes from; empty for this one
    std::string phase;
    std::string category;
    std::vector<double> values; ///< seconds by column of the table, 0 where none counts
};

/// The best of every section of the runs, as a row of their table; its total only where every
/// section has a best. Without penalties, sprint and real time.
[[nodiscard]] ComparisonRow idealRow(const RaceSet& set, const TableSettings& settings);

/// A run from anywhere as a row of the table of `set`: its first sections under those of the
/// course.
[[nodiscard]] ComparisonRow comparisonRow(const RaceSet& set, const analyzerdata& run,
                                          const TableSettings& settings);

} // namespace kavela
