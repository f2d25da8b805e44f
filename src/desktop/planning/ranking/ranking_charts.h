#pragma once

#include "desktop/charts/chart_content.h"
#include "planning/planning_records.h"

namespace kavela::desktop {

/// The athlete's position by release of the ranking list, the first on top.
[[nodiscard]] ChartContent positionChart(const icfdataplanning_v1& ranking);
[[nodiscard]] ChartContent pointsChart(const icfdataplanning_v1& ranking);
/// Touches and missed gates per run, day by day.
[[nodiscard]] ChartContent penaltyChart(const penaltydataplanning_v1& penalties);
/// Percent behind the best of the category, by phase.
[[nodiscard]] ChartContent percentChart(const racedataplanning_v3& races);

} // namespace kavela::desktop
