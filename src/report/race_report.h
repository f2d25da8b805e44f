#pragma once

#include "report/drawn_course.h"
#include "report/sheet_report.h"
#include "report/table_view.h"

namespace kavela::report {

enum class ReportContent {
    Table, ///< the split table as it is shown
    Race,  ///< results, ideal run and penalties by gate, then the table
};

/// A report of a race on A4 pages. It keeps what it needs of the race; the race set need not
/// outlive it.
class RaceReport : public SheetReport {
public:
    /// Lying where the table needs the width, for the whole report. With the course as it was drawn
    /// among its sections, unless that is null.
    RaceReport(const ReportHeading& heading, const RaceSet& set, const TableSettings& settings,
               ReportContent content, const TableView& view = {}, const SharedCourse& drawn = {});
};

} // namespace kavela::report
