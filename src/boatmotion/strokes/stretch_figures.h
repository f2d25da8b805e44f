#pragma once

#include "boatmotion/strokes/water_tests.h"

#include <utility>

namespace kavela::strokes {

/// Adds up what stretches of an analysis hold.
class StretchSums {
public:
    explicit StretchSums(const MotionAnalysis& analysis) : m_analysis(analysis) {}

    void add(double start, double end);

    /// The figures of all that was added; start and end enclose it.
    [[nodiscard]] StretchFigures figures() const;

private:
    const MotionAnalysis& m_analysis;
    StretchFigures m_sums;
    double m_distance = 0;
    double m_moving = 0; ///< s with valid samples
    double m_force = 0;
    double m_power = 0;
    double m_impulse = 0;
};

/// The first and the last but one index of the strokes whose catches lie from one moment to
/// another.
[[nodiscard]] std::pair<std::size_t, std::size_t> strokesBetween(const MotionAnalysis& analysis,
                                                                 double start, double end);

/// The same for the values of the series.
[[nodiscard]] std::pair<std::size_t, std::size_t> valuesBetween(const MotionSeries& series,
                                                                double start, double end);

} // namespace kavela::strokes
