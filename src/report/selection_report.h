#pragma once

#include "report/paged_report.h"
#include "results/selection_ranking.h"

#include <memory>

namespace kavela::report {

/// The name of the file that the results of the selection go into.
inline constexpr const char* SelectionFileName = "Selection races results.pdf";

/// The ranking of each category of a recomputed selection by the official times.
[[nodiscard]] std::unique_ptr<PagedReport> selectionReport(const selectionracesStruct_v3& document,
                                                           BonusKind bonus);

} // namespace kavela::report
