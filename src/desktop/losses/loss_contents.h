#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/charts/interval_chart.h"
#include "performance/loss_season.h"

namespace kavela::desktop {

class LossState;

/// The stretches that lost time, the greatest loss first, and how much of all they are together.
[[nodiscard]] ChartContent paretoContent(const LossState& state);

/// The gap as it grows along the course, and the results of interest as lines.
[[nodiscard]] ChartContent growthContent(const LossState& state);

/// What is lost in percent by each row of a season, with its interval. A mark is a row.
[[nodiscard]] IntervalChartContent seasonContent(const SeasonLosses& season,
                                                 const QString& emptyText);

} // namespace kavela::desktop
