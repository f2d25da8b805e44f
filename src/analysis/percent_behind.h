#pragma once

#include "analysis/analyzer_records.h"

#include <span>

namespace kavela {

/// Percent behind a best time: (time / best - 1) * 100; 0 where there is no time or no best.
[[nodiscard]] double percentBehind(double time, double best);

/// The smallest value that is not 0; 0 when there is none.
[[nodiscard]] double smallestNonZero(std::span<const double> values);

/// Computes every percent figure of the runs against the best of their column among these runs.
void fillPercentFigures(std::vector<analyzerdata>& runs);

} // namespace kavela
