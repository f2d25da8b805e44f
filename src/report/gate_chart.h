#pragma once

#include "analysis/gate_penalties.h"
#include "report/page_builder.h"
#include "report/typeface.h"

namespace kavela::report {

/// Puts a small chart of touches and missed gates by gate, upstream gates marked; nothing when no
/// run's penalties are known by gate.
void putGateChart(PageBuilder& pages, const CoursePenalties& penalties, const Typeface& typeface);

} // namespace kavela::report
