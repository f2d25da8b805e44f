#pragma once

#include "boatmotion/strokes/phases.h"

namespace kavela::strokes {

/// By how much a stroke moved the boat in one way, as far as a turn, a wave and the strokes around
/// it let that be told.
struct Measure {
    double value = 0;
    double variance = 0; ///< of its error, by what was left unexplained around the stroke
    bool isKnown = false;
};

/// How a hull answers to a blade: it follows the force and goes back, in 1/s.
struct SideMeasures {
    std::vector<Measure> strokes; ///< one for each stroke
    double answer = 0;            ///< 1/s: how fast the hull goes back
};

/// Measures what each stroke did to a series, in its units at the height of the stroke's force.
/// Around each stroke the series is taken for a smooth course of the boat's own with the answers to
/// this stroke and its neighbours on it, all fitted together by least squares. How fast the hull
/// answers is the one of `answers` (1/s) that explains the series best.
[[nodiscard]] SideMeasures sideMeasures(const StrokeView& view, std::span<const WaterPhase> phases,
                                        std::span<const double> series,
                                        std::span<const double> answers);

} // namespace kavela::strokes
