#pragma once

#include "performance/season_charts.h"

#include <string>
#include <vector>

namespace kavela::cli {

/// Columns that the lines of a chart take.
inline constexpr int SeasonChartWidth = 34;

/// The way of an athlete through the races in lines of letters: percent behind the winner by run,
/// the latest ones where there are too many. No lines where nothing is known. Runs with a missed
/// gate are left out.
[[nodiscard]] std::vector<std::string> progressionLines(const SeasonMember& member,
                                                        const ProgressionChart& chart);

} // namespace kavela::cli
