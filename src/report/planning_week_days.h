#pragma once

#include "planning/planning_records.h"
#include "report/page_builder.h"
#include "report/typeface.h"

namespace kavela::report {

/// Puts the days of a week as rows, with a column for each part of the day; a day that is too long
/// for a page goes on on the next.
void putWeekDays(PageBuilder& pages, const microsplanning_v5& week, const Typeface& typeface);

} // namespace kavela::report
