#pragma once

#include "boatmotion/strokes/motion_analysis.h"

namespace kavela::strokes {

/// Takes out of an analysis what would be another if bow and stern were swapped, see
/// MotionAnalysis::isBowKnown.
void withholdWhatNeedsTheBow(MotionAnalysis& analysis);

} // namespace kavela::strokes
