#pragma once

#include "report/report_table.h"
#include "report/typeface.h"

namespace kavela::report {

/// One line where that is wide enough, else two.
[[nodiscard]] qreal legendHeight(const ReportTable& table, const Typeface& typeface, qreal width);

/// Says what the colours and marks of a table mean, what its cells say, and whether the times hold
/// penalties.
void paintLegend(QPainter& painter, const QRectF& place, const ReportTable& table,
                 const Typeface& typeface);

} // namespace kavela::report
