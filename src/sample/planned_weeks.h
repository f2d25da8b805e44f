#pragma once

#include "planning/planning_records.h"
#include "sample/dice.h"

#include <chrono>
#include <vector>

namespace kavela::sample {

/// The weeks of a season. Sessions stand in the weeks from `detailedFrom` (counted from 1) on; the
/// weeks before keep their totals alone.
[[nodiscard]] std::vector<microsplanning_v5> plannedWeeks(std::chrono::year year,
                                                          std::size_t detailedFrom, Dice& dice);

} // namespace kavela::sample
