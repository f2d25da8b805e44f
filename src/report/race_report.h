#pragma once

#include "analysis/split_table.h"
#include "report/page_builder.h"
#include "report/report_heading.h"
#include "report/typeface.h"

#include <vector>

class QPainter;

namespace kavela::report {

enum class ReportContent {
    Table, ///< the split table as it is shown
    Race,  ///< results, ideal run and penalties by gate, then the table
};

/// A report of a race as A4 pages that can be painted anywhere: into a file, onto a printer, as a
/// preview. It keeps what it needs of the race; the race set need not outlive it. Needs a
/// QGuiApplication, for its fonts.
class RaceReport {
public:
    RaceReport(ReportHeading heading, const RaceSet& set, const TableSettings& settings,
               ReportContent content);

    [[nodiscard]] const ReportHeading& heading() const { return m_heading; }
    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }

    /// The paper: A4 without margins, since the pages bring their own. Lying where the table needs
    /// the width, for the whole report.
    [[nodiscard]] QPageLayout layout() const { return pageLayout(m_orientation); }

    /// Paints a page, counted from 0, in points (1/72 inch) from the painter's origin, which is the
    /// top left corner of the paper. The paper itself is not painted. The painter's state is kept.
    void paintPage(QPainter& painter, int page) const;

private:
    ReportHeading m_heading;
    Typeface m_typeface;
    QPageLayout::Orientation m_orientation = QPageLayout::Portrait;
    std::vector<Page> m_pages;
};

} // namespace kavela::report
