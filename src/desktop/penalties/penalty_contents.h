#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/charts/interval_chart.h"
#include "desktop/penalties/penalty_figures.h"

/// What the charts of the window of penalties show.
namespace kavela::desktop {

/// "by gate", "by crew"; how a grouping is called where it is chosen.
[[nodiscard]] QString titleOf(RateBy by);
/// How one row of a grouping is called: "Gate".
[[nodiscard]] QString rowTitleOf(RateBy by);
/// What a row is called, also where it is for those without one.
[[nodiscard]] QString nameOf(const RateRow& row);

/// The most rows that a chart ranks beside each other.
inline constexpr std::size_t MostRanked = 24;

[[nodiscard]] IntervalChartContent courseContent(const CourseOfRates& course);
[[nodiscard]] IntervalChartContent ratesContent(const PenaltyRates& rates);
/// "Pole": what is noted, as it is written.
[[nodiscard]] QString detailFieldText(std::string_view field);
/// The shares of what was noted; a mark for each row that has a code, in their order.
[[nodiscard]] IntervalChartContent detailsContent(const std::vector<DetailRow>& rows,
                                                  const QString& emptyText);
[[nodiscard]] ChartContent tradeOffContent(const TradeOff& tradeOff);

/// "fastest third"
[[nodiscard]] QString thirdText(int third);

} // namespace kavela::desktop
