#pragma once

#include <QColor>
#include <QPalette>

#include <cstddef>

/// The colours of the charts: a qualitative set that can be told apart by the colour-blind (Okabe
/// and Ito, 2008), darkened or lightened where it would not stand out from the ground. A shape
/// always goes with the colour.
namespace kavela::desktop {

/// The shapes of the markers, each in both forms: full and hollow.
enum class MarkerShape { Circle, Square, Triangle, Diamond, TriangleDown, Pentagon, Plus };

/// How one series is drawn.
struct SeriesStyle {
    QColor colour;
    MarkerShape shape = MarkerShape::Circle;
    Qt::PenStyle line = Qt::SolidLine;
};

/// Series that can be told apart in one chart.
inline constexpr std::size_t MostSeries = 21;

[[nodiscard]] SeriesStyle seriesStyle(std::size_t slot, const QPalette& palette);

[[nodiscard]] QColor touchColour(const QPalette& palette);
[[nodiscard]] QColor missedColour(const QPalette& palette);
[[nodiscard]] QColor upstreamColour(const QPalette& palette);

/// The ground of a chart, its grid, and the runs that nobody selected.
[[nodiscard]] QColor chartGround(const QPalette& palette);
[[nodiscard]] QColor gridColour(const QPalette& palette);
[[nodiscard]] QColor backgroundRuns(const QPalette& palette);

} // namespace kavela::desktop
