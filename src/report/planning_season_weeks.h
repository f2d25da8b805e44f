#pragma once

#include "planning/planning_records.h"
#include "report/page_builder.h"
#include "report/typeface.h"

namespace kavela::report {

/// Puts a line for each week, on as many pages as they need; neighbouring weeks of one macrocycle
/// or mesocycle share a band.
void putSeasonWeeks(PageBuilder& pages, const std::vector<microsplanning_v5>& weeks,
                    const Typeface& typeface);

} // namespace kavela::report
