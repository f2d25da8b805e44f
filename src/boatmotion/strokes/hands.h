#pragma once

#include "boatmotion/strokes/hand_chain.h"
#include "boatmotion/strokes/phases.h"

namespace kavela::strokes {

/// What the boat's motion tells about the hands of its strokes.
struct HandEvidence {
    std::vector<HandLink> links;
    HandModel model;
    /// Evidence of each stroke alone, -3 to 3: above 0 for the right hand.
    std::vector<double> scores;
};

/// A left blade pushes the bow to the right, and the boat leans with it in a way that is learned
/// from both.
[[nodiscard]] HandEvidence handEvidence(const StrokeView& view, std::span<const WaterPhase> phases);

/// Fills hand and confidence by the likeliest sequence. `scores` are those of the evidence, or what
/// a watch made of them.
void decideHands(const HandEvidence& evidence, std::span<const double> scores,
                 std::vector<Stroke>& strokes);

} // namespace kavela::strokes
