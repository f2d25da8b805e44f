#pragma once

#include "report/page_builder.h"
#include "report/paged_report.h"
#include "report/report_heading.h"
#include "report/typeface.h"

#include <vector>

namespace kavela::report {

/// A report of filled pages, which it frames: the title at the head of every page but the first,
/// whose title its builder put, and the page number at the foot.
class SheetReport : public PagedReport {
public:
    SheetReport(ReportHeading heading, PageBuilder pages);

    [[nodiscard]] QString documentTitle() const override { return m_heading.title; }
    [[nodiscard]] int pageCount() const override { return static_cast<int>(m_pages.size()); }
    [[nodiscard]] QPageLayout layout() const override { return pageLayout(m_orientation); }
    void paintPage(QPainter& painter, int page) const override;

private:
    ReportHeading m_heading;
    Typeface m_typeface;
    QPageLayout::Orientation m_orientation;
    std::vector<Page> m_pages;
};

} // namespace kavela::report
