#pragma once

#include "report/report_table.h"
#include "report/typeface.h"

#include <QPageLayout>

#include <vector>

/// How a table is fitted onto A4 paper.
namespace kavela::report {

/// Columns that stand side by side on one page, to the right of the names.
struct TableStrip {
    std::size_t first = 0;     ///< its first column in the table
    std::vector<qreal> widths; ///< of its columns
};

/// Upright while names and columns fit; else lying, the letters a little smaller where need be. A
/// table that is too wide even so is cut into strips, which follow each other as in an atlas.
struct TableLayout {
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    qreal points = 0; ///< size of the letters
    qreal nameWidth = 0;
    std::vector<qreal> leadWidths; ///< of the columns between the names and the times
    std::vector<TableStrip> strips;

    [[nodiscard]] qreal rowHeight() const { return 1.62 * points * Point; }
    [[nodiscard]] qreal headHeight() const { return 2.1 * points * Point; }
    [[nodiscard]] qreal groupHeight() const { return 2.5 * points * Point; }
};

[[nodiscard]] TableLayout layOutTable(const ReportTable& table, const Typeface& typeface);

/// Behind a place, in letters: it is no figure like those to its right.
inline constexpr qreal LeadGap = 1.4;

/// Stands behind the best value of a column.
inline const QString BestMark = QStringLiteral("*");

} // namespace kavela::report
