#include "report/sheet_report.h"

#include "report/page_frame.h"

#include <QPainter>

namespace kavela::report {

SheetReport::SheetReport(ReportHeading heading, PageBuilder pages)
    : m_heading(std::move(heading)),
      m_orientation(pages.orientation()),
      m_pages(std::move(pages).pages()) {}

void SheetReport::paintPage(QPainter& painter, int page) const {
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
