#pragma once

#include "facts/fact_store.h"
#include "performance/loss_season.h"
#include "report/paged_report.h"

#include <memory>
#include <string>
#include <string_view>

namespace kavela::report {

/// The season of an athlete on a page: where time is lost, with the interval and the verdict, what
/// to train, how often gates are touched and missed, and what was noted of it. The runs are those
/// that the query names; it keeps what it needs of the facts, which need not outlive it.
[[nodiscard]] std::unique_ptr<PagedReport> athletePage(const FactStore& facts,
                                                       const SeasonLossQuery& query);

/// The name of the file that the page of an athlete or a crew goes into: "BROOK Adam.pdf". Whatever
/// file systems do not take is replaced.
[[nodiscard]] std::string athletePageFileName(std::string_view athlete);

} // namespace kavela::report
