#pragma once

#include "planning/planning_records.h"
#include "splitdata/document.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::sample {

/// The plan of four athletes over two seasons: weeks with sessions, loads, events and tests of each
/// kind, body and heart data, gym records, ranking, goals, favourite sessions, and the statistics
/// of split files.
[[nodiscard]] planningdatac_v6 groupPlanning(std::span<const splittakerdata031> files);

/// Who may open it. The passwords open nothing.
[[nodiscard]] planninginfo_v1 groupAccess();

/// A list of heart-rate variability as a measuring app exports it, with a line that is no good.
[[nodiscard]] std::string morningVariability();

/// A planning of a former season as an older version kept it.
struct OldPlanning {
    std::string_view version; ///< "5"
    std::string text;
};

/// One for each older version that can be told from the others, newest first.
[[nodiscard]] std::vector<OldPlanning> oldPlannings();

} // namespace kavela::sample
