#pragma once

#include "analysis/race_set.h"

#include <vector>

/// Where on the course the penalties happened.
namespace kavela {

/// What happened at one gate.
struct GatePenalties {
    std::int64_t gate = 0; ///< counted from 1
    bool isUpstream = false;
    std::int64_t touches = 0;
    std::int64_t missed = 0;
};

struct CoursePenalties {
    std::vector<GatePenalties> gates; ///< every gate of the course; none when no run was counted
    std::size_t countedRuns = 0;      ///< runs whose penalties are known by gate
};

/// Touches and missed gates by gate. Only the runs count that have an entry for each gate of the
/// course: the penalties of the others are known by section at most.
[[nodiscard]] CoursePenalties coursePenalties(const RaceSet& set);

} // namespace kavela
