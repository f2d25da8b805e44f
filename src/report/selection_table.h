#pragma once

#include "report/page_builder.h"
#include "report/report_heading.h"
#include "report/typeface.h"
#include "results/selection_ranking.h"

/// What both reports of a selection share.
namespace kavela::report {

/// Title and facts: season, races, athletes, bonus.
[[nodiscard]] ReportHeading
selectionHeading(const QString& title, const selectionracesStruct_v3& document, BonusKind bonus);

/// Puts the selection's rules, as they were typed, wrapped to the page.
void putRules(PageBuilder& pages, const selectionracesStruct_v3& document,
              const Typeface& typeface);

/// Puts a table for each category of a recomputed selection, the best first: results that do not
/// count are struck through. More races than a page is wide go on in another table.
void putSelectionTables(PageBuilder& pages, const selectionracesStruct_v3& document,
                        SelectionTimes times, BonusKind bonus, const Typeface& typeface);

/// Puts the lines to sign on.
void putSignature(PageBuilder& pages, const Typeface& typeface);

} // namespace kavela::report
