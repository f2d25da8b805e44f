#pragma once

#include "boatmotion/strokes/grid.h"
#include "boatmotion/strokes/phases.h"

#include <optional>

namespace kavela::strokes {

/// What the watch on one wrist says about the hands.
struct WatchEvidence {
    double offset = 0;          ///< moment on the boat's clock = stamp of the watch + offset, s
    std::vector<double> scores; ///< for each stroke the joint evidence, above 0 for the right hand
};

/// Aligns the clocks within 3 s by the strokes that both feel, takes the wrist's tilt for left and
/// right, and lets the boat's own evidence say which is which. Nothing when the clocks cannot be
/// aligned or the watch contradicts the boat.
[[nodiscard]] std::optional<WatchEvidence> watchEvidence(const StrokeView& view,
                                                         std::span<const WaterPhase> phases,
                                                         std::span<const double> boatScores,
                                                         const MotionGrid& watch);

} // namespace kavela::strokes
