#pragma once

#include "boatmotion/strokes/motion_analysis.h"

namespace kavela {

/// What is told of all strokes and turns together.
struct SessionTotals {
    double seconds = 0; ///< from the first to the last sample, s
    std::size_t strokes = 0;
    std::optional<std::size_t> left{};  ///< strokes; nothing where the sides are not known
    std::optional<std::size_t> right{}; ///< strokes
    std::size_t bouts = 0;              ///< of paddling without a break of more than 2 s
    std::size_t leftTurns = 0;
    std::size_t rightTurns = 0;
    double medianRate = 0;              ///< of the strokes, 1/min; 0 without any
    std::optional<double> waterPhase{}; ///< mean, s; nothing where the bow is not known
    std::optional<double> distance{};   ///< m; nothing where the speed is not known
    std::optional<double> meanSpeed{};  ///< m/s
    std::optional<double> topSpeed{};   ///< m/s
    std::optional<double> force{};      ///< mean of the strokes, N; nothing where it is not known
    std::optional<double> impulse{};    ///< mean of the strokes, N·s
    std::optional<double> power{};      ///< mean of the strokes, W
};

[[nodiscard]] SessionTotals totalsOf(const MotionAnalysis& analysis);

/// The name of a hand, "left" or "right"; empty where it is not known.
[[nodiscard]] std::string_view handText(std::int64_t hand);

/// Strokes and turns by time as semicolon-separated text with a line of headings, times from the
/// first sample; angles in degrees. What is not known, or does not belong to the kind of a line, is
/// empty.
[[nodiscard]] std::string strokeTableCsv(const MotionAnalysis& analysis);

} // namespace kavela
