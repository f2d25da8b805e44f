#pragma once

#include "boatmotion/strokes/stroke_peaks.h"

namespace kavela::strokes {

/// Where a stroke's blade is in the water, by the force on the boat.
struct WaterPhase {
    double catchAt = 0; ///< fractional index
    double exitAt = 0;
    std::size_t peak = 0; ///< index of the greatest force
    /// The swing's own peak and height, for those who come after.
    Swing swing{};
};

/// The phases of the strokes in order, without those that touch a hole; no two overlap.
[[nodiscard]] std::vector<WaterPhase> waterPhases(const StrokeView& view,
                                                  std::span<const Swing> strokes);

} // namespace kavela::strokes
