#pragma once

#include "report/paged_report.h"
#include "results/selection_ranking.h"

#include <memory>
#include <string>

namespace kavela::report {

/// The name of the file that the expected times go into: "selection_results_2026.pdf".
[[nodiscard]] std::string selectionTimesFileName(const selectionracesStruct_v3& document);

/// What the ranking of each category of a recomputed selection would be by the expected times, by
/// the same rule.
[[nodiscard]] std::unique_ptr<PagedReport>
selectionTimesReport(const selectionracesStruct_v3& document, BonusKind bonus);

} // namespace kavela::report
