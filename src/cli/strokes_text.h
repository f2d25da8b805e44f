#pragma once

#include "boatmotion/strokes/motion_analysis.h"

#include <string>

namespace kavela::cli {

/// Strokes and turns as tables with totals, times from the first sample, angles in degrees; "–"
/// where something is not known.
[[nodiscard]] std::string strokesText(const MotionAnalysis& analysis, const MotionProfile& profile);

} // namespace kavela::cli
