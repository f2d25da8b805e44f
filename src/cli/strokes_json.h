#pragma once

#include "boatmotion/strokes/motion_analysis.h"

#include <string>

namespace kavela::cli {

/// An analysis as one JSON document, ended by a line feed: SI units, moments on the clock of the
/// boat's samples, null where something is not known.
[[nodiscard]] std::string strokesJson(const MotionAnalysis& analysis, const MotionProfile& profile);

} // namespace kavela::cli
