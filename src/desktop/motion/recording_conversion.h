#pragma once

#include "boatmotion/conversion.h"

namespace kavela::desktop {

struct MotionRecording;

/// Converts a recording that is loaded, with the profile that the coach set for it; `analysis` is
/// that of the profile where it is done already. The target must not exist yet; the recording's
/// own file is never touched. Failures are in the result.
[[nodiscard]] Conversion convertLoaded(const MotionRecording& recording,
                                       const MotionProfile& profile, const MotionAnalysis* analysis,
                                       const std::filesystem::path& target);

} // namespace kavela::desktop
