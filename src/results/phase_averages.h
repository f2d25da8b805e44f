#pragma once

#include "results/team_records.h"

#include <span>
#include <vector>

namespace kavela {

/// The averages of each phase over the runs of some races: the four phases in their order, then
/// others by name; a phase without runs is left out.
///
/// `per` is the mean of the percentages of each split, over the runs that have it, and at its end
/// the mean of the whole runs. `peraccu` is the same from the start up to each split: split times
/// and percentages give the fastest splits, and the sums of both the percentage. `pendis` holds
/// five shares of the runs in percent: without penalty, up to 2, up to 4 and up to 48 penalty
/// seconds, and 50 or more.
[[nodiscard]] std::vector<mtAverageDataStruct> phaseAverages(std::span<const mtRaceStruct> races);

/// Fills the averages of every season and category of an athlete.
void recomputeAverages(myTeamStruct& athlete);

} // namespace kavela
