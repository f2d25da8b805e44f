#pragma once

#include "desktop/charts/chart_content.h"
#include "planning/heart_trend.h"

/// What the charts of body and heart show, and the words that go with them.
namespace kavela::desktop {

/// Weight on the left, body fat on the right. What is 0 was not measured.
[[nodiscard]] ChartContent bodyChart(const yearsplannings_v6& season);

/// Daily values of the heart, their seven-day mean and what is usual for it.
[[nodiscard]] ChartContent trendChart(const std::vector<TrendDay>& trend, const QString& title,
                                      const QString& unit);

/// How the latest week stands against what is usual, in a sentence; empty without a measured day.
[[nodiscard]] QString standingText(const std::vector<TrendDay>& trend, const QString& unit);

} // namespace kavela::desktop
