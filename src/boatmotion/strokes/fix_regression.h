#pragma once

#include "boatmotion/strokes/axes.h"

namespace kavela::strokes {

/// How the changes of the fixes' speed follow from the acceleration along two directions.
struct FixRegression {
    double east = 0; ///< direction of the push that explains them, of length 1
    double north = 0;
    double explained = 0; ///< share of their variance, corrected for the number of fixes; 0 to 1
    double lag = 0;       ///< how late the fixes are, s, 0 to 1.4
};

/// Regression of speed changes over about 3 s, where the boat keeps its heading, on the integrals
/// of both accelerations; the lag is the one that explains most. Where that tells little, the boat
/// may turn more.
[[nodiscard]] FixRegression regressFixes(const MotionGrid& grid, const LevelMotion& level,
                                         std::span<const SpeedFix> fixes);

} // namespace kavela::strokes
