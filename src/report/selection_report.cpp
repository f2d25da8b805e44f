#include "report/selection_report.h"

#include "report/page_frame.h"
#include "report/selection_table.h"
#include "report/sheet_report.h"

namespace kavela::report {

std::unique_ptr<PagedReport> selectionReport(const selectionracesStruct_v3& document,
                                             BonusKind bonus) {
    const Typeface typeface;
    ReportHeading heading =
        selectionHeading(QStringLiteral("Selection races results"), document, bonus);
    PageBuilder pages(QPageLayout::Landscape);
    putTitleBlock(pages, heading, typeface);
    putRules(pages, document, typeface);
    putSelectionTables(pages, document, SelectionTimes::Official, bonus, typeface);
    putSignature(pages, typeface);
    return std::make_unique<SheetReport>(std::move(heading), std::move(pages));
}

} // namespace kavela::report
