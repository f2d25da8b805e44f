#pragma once

#include "boatmotion/strokes/motion_analysis.h"

namespace kavela {

/// What glides tell about the boat's drag.
struct DragCalibration {
    double drag = 0;    ///< N·s²/m², from 2 to 12; simulated glides came out 12 % low
    int glides = 0;     ///< that were used
    double seconds = 0; ///< of all of them
};

/// The drag by which the boat slows down on straight glides of at least 2 s: drag = mass ·
/// Σ(v at start − v at end) / ∫v² dt. Nothing when there are none. To be offered, not forced: wind,
/// waves and moving water are in it.
[[nodiscard]] std::optional<DragCalibration> calibrateDrag(const MotionAnalysis& analysis,
                                                           double mass);

} // namespace kavela
