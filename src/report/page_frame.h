#pragma once

#include "report/page_builder.h"
#include "report/report_heading.h"
#include "report/typeface.h"

/// What frames the pages of a report: the title of the first page, head and foot of the others.
namespace kavela::report {

/// The title block of a race report: the race in large letters, below it what is known of it.
void putTitleBlock(PageBuilder& pages, const ReportHeading& heading, const Typeface& typeface);

/// The title of a report that is only a table, in two lines.
void putShortTitle(PageBuilder& pages, const ReportHeading& heading, const Typeface& typeface);

/// The race, repeated at the head of every page but the first.
void paintPageHead(QPainter& painter, const QRectF& place, const ReportHeading& heading,
                   const Typeface& typeface);

/// "Page 2 / 3"
void paintPageNumber(QPainter& painter, const QRectF& place, int page, int pages,
                     const Typeface& typeface);

} // namespace kavela::report
