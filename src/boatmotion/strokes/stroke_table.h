#pragma once

#include "boatmotion/strokes/motion_analysis.h"

namespace kavela {

/// What is told of all strokes and turns together.
struct SessionTotals {
    double seconds = 0; ///< from the first to the last sample, s
    std::size_t strokes = 0;
    std::size_t left = 0;  ///< strokes
    std::size_t right = 0; ///< strokes
    std::size_t bouts = 0; ///< of paddling without a break of more than 2 s
    std::size_t leftTurns = 0;
    std::size_t rightTurns = 0;
    double medianRate = 0;             ///< of the strokes, 1/min; 0 without any
    double waterPhase = 0;             ///< mean, s
    std::optional<double> distance{};  ///< m; nothing where the speed is not known
    std::optional<double> meanSpeed{}; ///< m/s
    std::optional<double> topSpeed{};  ///< m/s
    std::optional<double> force{};     ///< mean of the strokes, N
    std::optional<double> impulse{};   ///< mean of the strokes, N·s
    std::optional<double> power{};     ///< mean of the strokes, W
};

[[nodiscard]] SessionTotals totalsOf(const MotionAnalysis& analysis);

/// Strokes and turns by time as semicolon-separated text with a line of headings, times from the
/// first sample; angles in degrees. What is not known, or does not belong to the kind of a line, is
/// empty.
[[nodiscard]] std::string strokeTableCsv(const MotionAnalysis& analysis);

} // namespace kavela
