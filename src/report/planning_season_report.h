#pragma once

#include "planning/planning_records.h"
#include "report/paged_report.h"

#include <memory>
#include <string_view>

namespace kavela::report {

/// A season of an athlete: every week with its cycles, load, sessions, event and tests; what the
/// weeks come to by category; the season's goals.
[[nodiscard]] std::unique_ptr<PagedReport> planningSeasonReport(std::string_view athlete,
                                                                const yearsplannings_v6& season);

} // namespace kavela::report
