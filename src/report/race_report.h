#pragma once

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
    /// Lying where the table needs the width, for the whole report.
    RaceReport(const ReportHeading& heading, const RaceSet& set, const TableSettings& settings,
               ReportContent content, const TableView& view = {});
};

} // namespace kavela::report
