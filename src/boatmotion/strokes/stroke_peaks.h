#pragma once

#include "boatmotion/strokes/motion_analysis.h"
#include "boatmotion/strokes/swings.h"

namespace kavela::strokes {

/// What the steps of the stroke analysis look at, all of the length of the series.
struct StrokeView {
    const MotionSeries& series;
    const MotionProfile& profile;
    bool hasSpeed = false;
    std::span<const double> smoothForward; ///< forward acceleration below 6 Hz, m/s²
    std::span<const double> yawRate;       ///< yaw rate below 3 Hz, rad/s
    std::span<const double> yawMean;       ///< mean yaw rate of 1.6 s, rad/s
    std::span<const double> periods;       ///< cadence, see cadence.h
};

/// Decides which swings are strokes: a stroke also kicks the bow aside and drives the boat, which
/// waves and gliding do not. Of two that are too close the higher stays; where the cadence misses
/// one, the largest of the weaker swings is taken. By time.
[[nodiscard]] std::vector<Swing> strokePeaks(const StrokeView& view, const Swings& swings);

} // namespace kavela::strokes
