#pragma once

#include "analysis/race_set.h"
#include "report/small_lists.h"

#include <span>

namespace kavela::report {

/// The lists of a race report. First the results of each phase and category: total with penalties,
/// gap to the first; runs without a total stand at the end. Then for each category the best of
/// every section over all phases, and whose it is. `sectionTitles` are those of the table.
[[nodiscard]] SmallLists raceLists(const RaceSet& set, std::span<const QString> sectionTitles);

} // namespace kavela::report
