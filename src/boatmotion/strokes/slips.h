#pragma once

#include "boatmotion/strokes/grid.h"
#include "boatmotion/strokes/motion_analysis.h"

namespace kavela::strokes {

/// Finds where the phone turned in its mount for good, by where gravity and the boat's long axis
/// lie before and after, and turns the samples of all other stretches into the axes that the device
/// had in the longest one. A turn of less than some seven degrees, or of less than some fifteen
/// about the vertical alone, is not noticed; beyond 75 degrees somebody took the phone in hand, and
/// the stretch is left as it is. Stretches of less than ten seconds are not told apart. In a canoe
/// a turn about the vertical alone is not noticed: strokes on one side show the boat's long axis
/// askew, and the other way when hands change. By time.
[[nodiscard]] std::vector<PhoneSlip> straightenSlips(MotionGrid& grid, BoatClass boat);

} // namespace kavela::strokes
