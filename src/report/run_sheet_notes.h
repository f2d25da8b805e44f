#pragma once

#include "analysis/race_set.h"
#include "report/sheet_lists.h"

#include <vector>

namespace kavela::report {

/// The timing and the annotations of a run of a race set as a record of the split file; neither its
/// films nor its recordings.
[[nodiscard]] athletedata031 annotatedRecord(const analyzerdata& run);

/// What is noted on a run, as lists: times at upstream gates, time losses, tags with their moments,
/// comments by split. Lists without an entry are left out.
[[nodiscard]] std::vector<SheetList> noteLists(const RaceSet& set, const athletedata031& run);

} // namespace kavela::report
