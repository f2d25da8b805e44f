#include "report/selection_times_report.h"

#include "report/page_frame.h"
#include "report/selection_table.h"
#include "report/sheet_report.h"

namespace kavela::report {

std::string selectionTimesFileName(const selectionracesStruct_v3& document) {
    return "selection_results_" + std::to_string(document.year) + ".pdf";
}

std::unique_ptr<PagedReport> selectionTimesReport(const selectionracesStruct_v3& document,
                                                  BonusKind bonus) {
    const Typeface typeface;
    ReportHeading heading =
        selectionHeading(QStringLiteral("Selection results xTimes"), document, bonus);
    PageBuilder pages(QPageLayout::Landscape);
    putTitleBlock(pages, heading, typeface);
    putSelectionTables(pages, document, SelectionTimes::Expected, bonus, typeface);
    putSignature(pages, typeface);
    return std::make_unique<SheetReport>(std::move(heading), std::move(pages));
}

} // namespace kavela::report
