#pragma once

#include "analysis/race_set.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

/// The order of the runs of a race: within each phase and category the runs whose total counts, by
/// total with penalties. Totals that look the same, to the hundredth, share a rank, and the next
/// rank counts them all: 1, 2, 2, 4.
namespace kavela {

/// The runs that compete with one another, by their indices in the race set, in its order.
struct RunGroup {
    std::string phase;
    std::string category;
    std::vector<std::size_t> runs;
};

/// One line of a result list.
struct RankedRun {
    std::size_t run = 0; ///< index in the race set
    int rank = 0;        ///< counted from 1
    double total = 0;    ///< seconds, with penalties
    double gap = 0;      ///< seconds behind the first
};

/// The groups of a race, in the order in which their first runs stand.
[[nodiscard]] std::vector<RunGroup> runGroups(const RaceSet& set);

/// The runs among these whose total counts, the fastest first; equal ones in the order given.
[[nodiscard]] std::vector<RankedRun> ranking(const RaceSet& set, std::span<const std::size_t> runs);

/// The rank of each run of the set within its own group; none for a run whose total does not
/// count.
[[nodiscard]] std::vector<std::optional<int>> ranksInGroups(const RaceSet& set);

} // namespace kavela
