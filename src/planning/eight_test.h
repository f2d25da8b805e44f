#pragma once

#include "planning/test_records.h"

#include <span>
#include <vector>

/// The score of an eight test: how long, how evenly, and how hard the boat was turned.
namespace kavela {

/// Peaks of the turns in one direction of a rotation series (rad/s, positive to the left), as
/// magnitudes in order of time. A turn is a stretch in that direction that reaches half of the
/// greatest rotation of the series in it; slower movement is the boat's own sway.
[[nodiscard]] std::vector<double> turnPeaks(std::span<const double> rotation, bool toTheLeft);

inline constexpr std::size_t EightSplits = 5;

/// Whether all five splits were timed: only then are their total and their deviation results.
[[nodiscard]] bool isWhole(const datafor8& run);

/// Fills `totalsplit`, `sdv` (over the five splits, divided by one less than their number),
/// `zrotsubmaxR` and `zrotsubmaxL`.
void scoreEightTest(datafor8& run);

} // namespace kavela
