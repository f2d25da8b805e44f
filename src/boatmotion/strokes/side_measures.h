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

/// How a hull answers to a blade: it is set in motion by the force, and goes back by itself.
struct HullAnswer {
    double decay = 1; ///< 1/s: how fast it goes back
    double delay = 0; ///< s after the force that is felt; below 0 before it
};

struct SideMeasures {
    std::vector<Measure> strokes; ///< one for each stroke
    HullAnswer answer;
};

/// Measures what each stroke did to a series, in its units at the height of the stroke's force.
/// Around each stroke the series is taken for a smooth course of the boat's own with the answers to
/// this stroke and its neighbours on it, all fitted together by least squares. How the hull answers
/// is found by the decays (1/s) and delays (s) with which the strokes stand out most clearly.
[[nodiscard]] SideMeasures sideMeasures(const StrokeView& view, std::span<const WaterPhase> phases,
                                        std::span<const double> series,
                                        std::span<const double> decays,
                                        std::span<const double> delays);

} // namespace kavela::strokes
