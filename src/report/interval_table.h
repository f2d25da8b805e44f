#pragma once

#include "common/interval.h"
#include "report/page_builder.h"
#include "report/typeface.h"

#include <QString>

#include <optional>
#include <vector>

/// Figures with where the true ones lie, drawn beside them: what is known well stands apart at a
/// glance from what is not.
namespace kavela::report {

struct IntervalColumn {
    QString title;
    qreal width = 0; ///< in points; what the others leave goes to the column of the drawing
    Qt::Alignment alignment = Qt::AlignRight;
};

struct IntervalRow {
    std::vector<QString> texts;       ///< by column; that of the drawing has none
    std::optional<double> value = {}; ///< drawn as a dot
    std::optional<Interval> interval = {};
    bool standsOut = false; ///< in bold, its dot filled
    bool isFirst = false;   ///< of some rows that belong together
};

struct IntervalTable {
    std::vector<IntervalColumn> columns;
    std::size_t drawn = 0; ///< the column of the drawing
    std::vector<IntervalRow> rows;
    QString unit; ///< of the scale
};

/// The height that a table takes.
[[nodiscard]] qreal heightOf(const IntervalTable& table);

/// Puts a table onto the page, over its whole width; the height must be there.
void putIntervalTable(PageBuilder& pages, IntervalTable table, const Typeface& typeface);

} // namespace kavela::report
