#include "report/race_report.h"

#include "analysis/gate_penalties.h"
#include "report/gate_chart.h"
#include "report/page_frame.h"
#include "report/race_lists.h"
#include "report/said.h"
#include "report/small_lists.h"
#include "report/table_pages.h"
#include "report/wrapped_text.h"

#include <QPainter>

namespace kavela::report {

namespace {

constexpr qreal SectionGap = 22 * Point;
constexpr std::size_t FewestRowsBelowHeading = 8;

void putRaceSections(PageBuilder& pages, const RaceSet& set, std::span<const QString> sectionTitles,
                     const SharedCourse& drawn, const Typeface& typeface) {
    putLists(pages, raceLists(set, sectionTitles), typeface);
    pages.skip(SectionGap);
    putGateChart(pages, coursePenalties(set), typeface);
    pages.skip(SectionGap);
    if (!drawn)
        return;
    putDrawnCourse(pages, drawn, coursePenalties(set), typeface);
    pages.skip(SectionGap);
}

void putTableHeading(PageBuilder& pages, const TableLayout& layout, const Typeface& typeface) {
    const qreal rows = static_cast<qreal>(FewestRowsBelowHeading) * layout.rowHeight();
    if (pages.space().height() <
        SectionHeadingHeight + layout.headHeight() + layout.groupHeight() + rows)
        pages.newPage();
    pages.put(SectionHeadingHeight, [typeface](QPainter& painter, const QRectF& place) {
        paintSectionHeading(painter, place, said("Split times"), {}, typeface);
    });
}

void putNoRuns(PageBuilder& pages, const Typeface& typeface) {
    pages.put(20 * Point, [typeface](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, said("There are no runs to show."),
                      {9, false, Quiet});
    });
}

/// Those who are in no list, as they have no run or no time.
void putThoseOut(PageBuilder& pages, const ReportHeading& heading, const Typeface& typeface) {
    constexpr TextStyle Style{9, false, Quiet};
    for (const std::string& line : heading.out)
        putLines(pages, wrappedLines(line, typeface, Style, pages.space().width()), Style,
                 typeface);
    if (!heading.out.empty())
        pages.skip(SectionGap);
}

PageBuilder racePages(const ReportHeading& heading, const RaceSet& set,
                      const TableSettings& settings, ReportContent content, const TableView& view,
                      const SharedCourse& drawn) {
    const Typeface typeface;
    const SplitTable splits = makeSplitTable(set, settings);
    const ReportTable table = reportTable(set, splits, settings, view);
    const TableLayout layout = layOutTable(table, typeface);
    PageBuilder pages(layout.orientation);
    if (content == ReportContent::Race) {
        putTitleBlock(pages, heading, typeface);
        putThoseOut(pages, heading, typeface);
        if (table.rowCount() > 0) {
            putRaceSections(pages, set, columnTitles(splits), drawn, typeface);
            putTableHeading(pages, layout, typeface);
        }
    } else {
        putShortTitle(pages, heading, typeface);
    }
    if (table.rowCount() > 0)
        putTable(pages, table, layout, typeface);
    else
        putNoRuns(pages, typeface);
    return pages;
}

} // namespace

RaceReport::RaceReport(const ReportHeading& heading, const RaceSet& set,
                       const TableSettings& settings, ReportContent content, const TableView& view,
                       const SharedCourse& drawn)
    : SheetReport(heading, racePages(heading, set, settings, content, view, drawn)) {}

} // namespace kavela::report
