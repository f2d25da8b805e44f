#pragma once

#include "analysis/race_set.h"

namespace kavela {

/// Percent behind a best time: (time / best - 1) * 100; 0 where there is no time or no best.
[[nodiscard]] double percentBehind(double time, double best);

/// Computes every percent figure of the runs against the best of their column among these runs.
/// Values that do not count have none.
void fillPercentFigures(RaceSet& set);

} // namespace kavela
