#pragma once

#include "boatmotion/strokes/phases.h"

namespace kavela::strokes {

/// Measures the strokes: all values but the hand.
[[nodiscard]] std::vector<Stroke> measureStrokes(const StrokeView& view,
                                                 std::span<const WaterPhase> phases);

/// For each stroke the median rate of up to five strokes around it, within its bout.
[[nodiscard]] std::vector<double> shownRates(std::span<const Stroke> strokes);

} // namespace kavela::strokes
