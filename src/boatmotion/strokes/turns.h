#pragma once

#include "boatmotion/strokes/motion_analysis.h"

namespace kavela::strokes {

/// The turns of the boat, by time. `yawRate3` is the yaw rate below 3 Hz.
[[nodiscard]] std::vector<Turn> findTurns(const MotionSeries& series,
                                          std::span<const double> yawRate3,
                                          const MotionProfile& profile);

} // namespace kavela::strokes
