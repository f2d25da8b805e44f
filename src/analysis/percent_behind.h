#pragma once

#include "analysis/race_set.h"
#include "common/why.h"

namespace kavela {

/// Percent behind a best time: (time / best - 1) * 100; 0 where there is no time or no best.
/// What the two are is told by whoever has them.
[[nodiscard]] double percentBehind(double time, double best, Why* why = nullptr);

/// Computes every percent figure of the runs against the best of their column among these runs.
/// Values that do not count have none.
void fillPercentFigures(RaceSet& set);

} // namespace kavela
