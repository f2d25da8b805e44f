#pragma once

#include "boatmotion/strokes/grid.h"
#include "boatmotion/strokes/motion_analysis.h"

namespace kavela::strokes {

/// Finds where the phone turned in its mount for good, by where gravity and the boat's long axis
/// lie before and after, and turns the samples of all other stretches into the axes that the device
/// had in the longest one. A turn of less than some five degrees, or of less than some fifteen
/// about the vertical alone, is not noticed; beyond 75 degrees somebody took the phone in hand, and
/// the stretch is left as it is. Stretches of less than ten seconds are not told apart. By time.
[[nodiscard]] std::vector<PhoneSlip> straightenSlips(MotionGrid& grid);

} // namespace kavela::strokes
