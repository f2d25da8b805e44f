#pragma once

#include "planning/planning_records.h"

#include <string>
#include <vector>

namespace kavela {

/// One training category of a week: what its sessions add up to, and what its totals plan.
struct CategoryTotal {
    std::string category;
    std::int64_t sessions = 0; ///< sessions with a value in it
    double quantity = 0;       ///< sum of their values
    std::int64_t plannedSessions = 0;
    double plannedQuantity = 0;

    [[nodiscard]] double difference() const { return quantity - plannedQuantity; }
    /// Percent of the plan; 0 where nothing is planned.
    [[nodiscard]] double percentDone() const;
};

/// One total per category: all known ones, and as many more as the week has values for.
[[nodiscard]] std::vector<CategoryTotal> weekTotals(const microsplanning_v5& week);

/// The same added up over weeks.
[[nodiscard]] std::vector<CategoryTotal> totalsOf(const std::vector<microsplanning_v5>& weeks);

/// Makes what the sessions add up to the week's planned totals.
void planAsInSessions(microsplanning_v5& week);

} // namespace kavela
