#pragma once

#include "report/page_builder.h"
#include "report/paged_report.h"
#include "report/report_heading.h"
#include "report/table_view.h"
#include "report/typeface.h"

#include <vector>

namespace kavela::report {

enum class ReportContent {
    Table, ///< the split table as it is shown
    Race,  ///< results, ideal run and penalties by gate, then the table
};

/// A report of a race on A4 pages. It keeps what it needs of the race; the race set need not
/// outlive it.
class RaceReport : public PagedReport {
public:
    RaceReport(ReportHeading heading, const RaceSet& set, const TableSettings& settings,
               ReportContent content, const TableView& view = {});

    [[nodiscard]] QString documentTitle() const override { return m_heading.title; }
    [[nodiscard]] int pageCount() const override { return static_cast<int>(m_pages.size()); }

    /// Lying where the table needs the width, for the whole report.
    [[nodiscard]] QPageLayout layout() const override { return pageLayout(m_orientation); }

    void paintPage(QPainter& painter, int page) const override;

private:
    ReportHeading m_heading;
    Typeface m_typeface;
    QPageLayout::Orientation m_orientation = QPageLayout::Portrait;
    std::vector<Page> m_pages;
};

} // namespace kavela::report
