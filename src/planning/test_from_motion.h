#pragma once

#include "boatmotion/sessions.h"
#include "boatmotion/strokes/motion_analysis.h"
#include "planning/water_test_file.h"

#include <span>

/// Tests taken in from a recording: what its strokes and turns were, section by section. Moments
/// are seconds on the clock of the boat's samples.
namespace kavela {

/// Fills every series of a lap test or a sprint that is set up with athlete, location and so on.
/// The first section begins at `start`, section i ends at `ends`[i]; they must ascend. What the
/// recording cannot tell, as force without position fixes, stays 0.
[[nodiscard]] onWaterTest testFromMotion(onWaterTest setUp, const MotionAnalysis& motion,
                                         double start, std::span<const double> ends);

/// An eight test with the same moments (up to five sections), and the samples between them.
[[nodiscard]] onWaterEight eightFromMotion(const bmrawdata_v5& session,
                                           const MotionAnalysis& motion, double start,
                                           std::span<const double> ends);

/// Proposals for the marks of a test: its start and the end of each section, ascending. Nothing
/// where the recording holds no such test.
///
/// Laps begin with the first stroke and end in every second turn, the last of them with the last
/// stroke where there is no turn for it; at most `laps` of them.
[[nodiscard]] std::vector<double> suggestedLaps(const MotionAnalysis& motion, std::size_t laps);
/// The thirty seconds of the greatest power; fewer where the recording is shorter.
[[nodiscard]] std::vector<double> suggestedSprint(const MotionAnalysis& motion);
/// Up to five eights that follow each other.
[[nodiscard]] std::vector<double> suggestedEights(const MotionAnalysis& motion);

} // namespace kavela
