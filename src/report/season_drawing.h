#pragma once

#include "performance/season_charts.h"
#include "report/typeface.h"

#include <QRectF>

class QPainter;

/// The charts of a season on paper.
namespace kavela::report {

inline constexpr qreal ProgressionHeight = 150 * Point;
inline constexpr qreal BenchmarkHeight = 110 * Point;

/// The way of an athlete through the races: percent behind by run, a mark for each phase, the years
/// below. Runs with a missed gate are left out.
void paintProgression(QPainter& painter, const QRectF& place, const SeasonMember& member,
                      const ProgressionChart& chart, const Typeface& typeface);

/// What each rank took: a box from quartile to quartile, a line from the least to the most.
void paintBenchmarks(QPainter& painter, const QRectF& place, const BenchmarkChart& chart,
                     const Typeface& typeface);

/// The height that the chances of so many boats take.
[[nodiscard]] qreal placesHeight(const PlacesChart& chart);

/// The chances of the places, the darker the likelier, each with its percentage where there is
/// room.
void paintPlaces(QPainter& painter, const QRectF& place, const PlacesChart& chart,
                 const Typeface& typeface);

} // namespace kavela::report
