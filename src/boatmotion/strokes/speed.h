#pragma once

#include "boatmotion/strokes/clocks.h"
#include "boatmotion/strokes/grid.h"

namespace kavela::strokes {

/// Fixes from which a speed can be followed over a recording.
[[nodiscard]] bool canTellSpeed(const MotionGrid& grid, std::span<const SpeedFix> fixes);

/// Joins fixes and acceleration to the speed at every moment: an observer of speed and sensor bias,
/// run forward and backward and averaged, each pass counting less the longer it had no fix. The
/// bias that was found is taken off `forward`. Fixes are `lag` seconds late.
[[nodiscard]] std::vector<double> joinSpeed(const MotionGrid& grid, std::vector<double>& forward,
                                            std::span<const SpeedFix> fixes, double lag);

} // namespace kavela::strokes
