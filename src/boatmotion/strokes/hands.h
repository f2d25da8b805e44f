#pragma once

#include "boatmotion/strokes/phases.h"

namespace kavela::strokes {

/// Evidence for the hand of each stroke, about -3 to 3: above 0 for the right one. A left blade
/// pushes the bow to the right, and the boat leans with it in a way that is learned from both.
[[nodiscard]] std::vector<double> handScores(const StrokeView& view,
                                             std::span<const WaterPhase> phases);

/// Fills hand and confidence by the likeliest sequence for the class of boat. A kayak's hands
/// change from stroke to stroke, in turns less surely so; a canoe's seldom.
void decideHands(const StrokeView& view, std::span<const WaterPhase> phases,
                 std::span<const double> scores, std::vector<Stroke>& strokes);

} // namespace kavela::strokes
