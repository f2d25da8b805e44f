#pragma once

#include "report/page_builder.h"
#include "report/typeface.h"

#include <QString>

#include <vector>

/// Short lists side by side, as results are printed in a newspaper.
namespace kavela::report {

struct ListColumn {
    QString title;
    Qt::Alignment alignment = Qt::AlignRight;
    bool takesRest = false; ///< of the width; the others are as wide as what they hold
    bool isAlwaysPlain = false;
};

struct ListRow {
    std::vector<QString> texts; ///< by column
    bool isBold = false;        ///< but for the columns that are always plain
    bool isQuiet = false;
};

struct SmallList {
    std::size_t kind = 0; ///< which columns it has
    QString title;
    std::vector<ListRow> rows;
};

struct SmallLists {
    std::vector<std::vector<ListColumn>> kinds;
    std::vector<SmallList> lists;
};

/// Puts the lists onto the page, two or three side by side, of about the same height. A list is cut
/// only when a page is too short for it.
void putLists(PageBuilder& pages, SmallLists lists, const Typeface& typeface);

inline constexpr qreal SectionHeadingHeight = 26 * Point;

/// The heading of a part of the report, with a quiet remark at its right.
void paintSectionHeading(QPainter& painter, const QRectF& place, const QString& text,
                         const QString& remark, const Typeface& typeface);

} // namespace kavela::report
