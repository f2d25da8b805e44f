#pragma once

#include "boatmotion/samples.h"

#include <cstddef>
#include <span>
#include <vector>

namespace kavela {

/// A jolt of the boat: a gate that was hit, a wall that was touched, the first pull of a start.
struct MotionEvent {
    double stamp = 0; ///< on the clock of the samples, s
    double jerk = 0;  ///< greatest change of the acceleration, g/s
};

/// The strongest jolts within `within` seconds of a stamp, the strongest first, at least a quarter
/// of a second apart: moments to snap to when a coach points at an event that the video shows too.
/// Samples need no order; ones that are no numbers are passed over.
[[nodiscard]] std::vector<MotionEvent> estimateEvents(std::span<const boatmotionrawdata_v5> samples,
                                                      double stamp, double within = 2,
                                                      std::size_t most = 5);

} // namespace kavela
