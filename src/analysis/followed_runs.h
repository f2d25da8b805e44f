#pragma once

#include "analysis/race_set.h"

#include <optional>
#include <vector>

namespace kavela {

/// Where the runs of a race stand once its file was read again: for each run of `before` its index
/// in `after`, none for one that is gone. A run is known by crew, phase and category, several alike
/// by their order among themselves; one that was given another name, by its place and its times.
[[nodiscard]] std::vector<std::optional<std::size_t>> followedRuns(const RaceSet& before,
                                                                   const RaceSet& after);

} // namespace kavela
