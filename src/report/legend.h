#pragma once

#include "report/report_table.h"
#include "report/typeface.h"

namespace kavela::report {

inline constexpr qreal LegendHeight = 12 * Point;

/// One line that says what the colours and marks of a table mean, and whether its times hold
/// penalties.
void paintLegend(QPainter& painter, const QRectF& place, const ReportTable& table,
                 const Typeface& typeface);

} // namespace kavela::report
