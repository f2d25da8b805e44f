#pragma once

#include "planning/planning_records.h"
#include "report/paged_report.h"

#include <memory>
#include <string_view>

namespace kavela::report {

/// An athlete's week to hand out: the seven days with their sessions by part of the day, totals by
/// category, goals, and room for notes. Before 12 o'clock is morning, before 17 afternoon. Sessions
/// without a time of day stand by themselves, and so do those that are on no day of the week.
[[nodiscard]] std::unique_ptr<PagedReport> planningWeekReport(std::string_view athlete,
                                                              const microsplanning_v5& week);

} // namespace kavela::report
