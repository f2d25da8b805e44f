#include "report/race_report.h"

#include "analysis/gate_penalties.h"
#include "report/gate_chart.h"
#include "report/page_frame.h"
#include "report/race_lists.h"
#include "report/small_lists.h"
#include "report/table_pages.h"

#include <QPainter>

namespace kavela::report {

namespace {

constexpr qreal SectionGap = 22 * Point;
constexpr std::size_t FewestRowsBelowHeading = 8;

void putRaceSections(PageBuilder& pages, const RaceSet& set, std::span<const QString> sectionTitles,
                     const Typeface& typeface) {
    putLists(pages, raceLists(set, sectionTitles), typeface);
    pages.skip(SectionGap);
    putGateChart(pages, coursePenalties(set), typeface);
    pages.skip(SectionGap);
}

void putTableHeading(PageBuilder& pages, const TableLayout& layout, const Typeface& typeface) {
    const qreal rows = static_cast<qreal>(FewestRowsBelowHeading) * layout.rowHeight();
    if (pages.space().height() <
        SectionHeadingHeight + layout.headHeight() + layout.groupHeight() + rows)
        pages.newPage();
    pages.put(SectionHeadingHeight, [typeface](QPainter& painter, const QRectF& place) {
        paintSectionHeading(painter, place, QStringLiteral("Split times"), {}, typeface);
    });
}

void putNoRuns(PageBuilder& pages, const Typeface& typeface) {
    pages.put(20 * Point, [typeface](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, QStringLiteral("There are no runs to show."),
                      {9, false, Quiet});
    });
}

} // namespace

RaceReport::RaceReport(ReportHeading heading, const RaceSet& set, const TableSettings& settings,
                       ReportContent content, const TableView& view)
    : m_heading(std::move(heading)) {
    const SplitTable splits = makeSplitTable(set, settings);
    const ReportTable table = reportTable(set, splits, settings, view);
    const TableLayout layout = layOutTable(table, m_typeface);
    m_orientation = layout.orientation;

    PageBuilder pages(m_orientation);
    if (content == ReportContent::Race) {
        putTitleBlock(pages, m_heading, m_typeface);
        if (table.rowCount() > 0) {
            putRaceSections(pages, set, columnTitles(splits), m_typeface);
            putTableHeading(pages, layout, m_typeface);
        }
    } else {
        putShortTitle(pages, m_heading, m_typeface);
    }
    if (table.rowCount() > 0)
        putTable(pages, table, layout, m_typeface);
    else
        putNoRuns(pages, m_typeface);
    m_pages = std::move(pages).pages();
}

void RaceReport::paintPage(QPainter& painter, int page) const {
    painter.save();
    painter.scale(1 / Point, 1 / Point);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Piece& piece : m_pages.at(static_cast<std::size_t>(page)))
        piece.paint(painter, piece.place);
    if (page > 0)
        paintPageHead(painter, headPlace(m_orientation), m_heading, m_typeface);
    paintPageNumber(painter, footPlace(m_orientation), page + 1, pageCount(), m_typeface);
    painter.restore();
}

} // namespace kavela::report
