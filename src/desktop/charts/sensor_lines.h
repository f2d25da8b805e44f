#pragma once

#include "desktop/charts/sample_pyramid.h"
#include "desktop/charts/sensor_series.h"

#include <QPolygonF>
#include <QRectF>

#include <utility>
#include <vector>

/// From samples to what is drawn of them.
namespace kavela::desktop {

/// Where moments and values come to stand.
struct SensorScale {
    QRectF plot;
    double from = 0; ///< seconds at the left edge
    double to = 1;   ///< seconds at the right edge
    double low = 0;  ///< value at the lower edge
    double high = 1; ///< value at the upper edge

    [[nodiscard]] double x(double time) const;
    [[nodiscard]] double y(double value) const; ///< near the plot, however far the value is off
    [[nodiscard]] double time(double pixel) const;
};

/// A series with what makes drawing it quick.
struct DrawnSeries {
    SensorSeries series;
    std::shared_ptr<const SamplePyramid> pyramid;
    double gap = 0; ///< seconds that are not joined

    /// The places of the samples in a stretch of time, the last one not included.
    [[nodiscard]] std::pair<std::size_t, std::size_t> indices(double from, double to) const;
    [[nodiscard]] Extent extent(double from, double to) const;
};

/// What is drawn of one series: lines and dots, or columns.
struct SensorLines {
    std::vector<QPolygonF> lines;
    std::vector<QPointF> dots;   ///< samples that stand apart, or far enough from each other
    std::vector<QRectF> columns; ///< each touches the one before where they are joined
};

/// Lines through the samples where there are few; otherwise a column from the least to the greatest
/// for each of the `columns`, the pixels of the screen across the plot: no peak is lost.
[[nodiscard]] SensorLines linesOf(const DrawnSeries& drawn, const SensorScale& scale, int columns);

} // namespace kavela::desktop
