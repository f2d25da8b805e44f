#pragma once

#include "desktop/charts/chart_content.h"

class QCustomPlot;

/// What stands along the x axis of a SeriesChart.
namespace kavela::desktop {

/// Whether a coordinate has a place on the axis.
[[nodiscard]] bool isDrawable(ChartContent::Across across, double x);
/// Whether a value can be drawn.
[[nodiscard]] bool isDrawable(double y);

/// A place in words: "2026-03-09", "2026-03-09 07:30", a category, a number.
[[nodiscard]] QString placeText(const ChartContent& content, double x);
/// A value with as many digits as anybody reads: "72.4", "1034.5".
[[nodiscard]] QString valueText(double value);

/// Puts numbers, dates or categories along the x axis of a plot, and values up the other two.
void showAxes(QCustomPlot& plot, const ChartContent& content);

} // namespace kavela::desktop
