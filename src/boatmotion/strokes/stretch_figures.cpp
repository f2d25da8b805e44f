#include "boatmotion/strokes/stretch_figures.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>

namespace kavela {

namespace strokes {

std::pair<std::size_t, std::size_t> strokesBetween(const MotionAnalysis& analysis, double start,
                                                   double end) {
    const auto isBefore = [](const Stroke& stroke, double time) { return stroke.catchTime < time; };
    const auto first = analysis.strokes.begin();
    const auto last = analysis.strokes.end();
    const auto from = std::lower_bound(first, last, start, isBefore);
    const auto to = std::lower_bound(from, last, end, isBefore);
    return {static_cast<std::size_t>(from - first), static_cast<std::size_t>(to - first)};
}

std::pair<std::size_t, std::size_t> valuesBetween(const MotionSeries& series, double start,
                                                  double end) {
    const auto first = series.time.begin();
    const auto from = std::lower_bound(first, series.time.end(), start);
    const auto to = std::lower_bound(from, series.time.end(), end);
    return {static_cast<std::size_t>(from - first), static_cast<std::size_t>(to - first)};
}

void StretchSums::add(double start, double end) {
    m_sums.start = m_sums.seconds > 0 ? std::min(m_sums.start, start) : start;
    m_sums.end = m_sums.seconds > 0 ? std::max(m_sums.end, end) : end;
    m_sums.seconds += end - start;
    const auto [firstValue, endValue] = valuesBetween(m_analysis.series, start, end);
    for (std::size_t i = firstValue; i < endValue; ++i)
        if (m_analysis.series.valid[i]) {
            m_distance += m_analysis.series.speed[i] * Step;
            m_moving += Step;
        }
    const auto [first, last] = strokesBetween(m_analysis, start, end);
    for (std::size_t i = first; i < last; ++i) {
        const smartStraight_v3& values = m_analysis.strokes[i].values;
        m_sums.strokes += 1;
        m_sums.strokeRate += values.strokeRate;
        m_force += values.force;
        m_power += values.power;
        m_impulse += values.impulse;
    }
}

StretchFigures StretchSums::figures() const {
    StretchFigures result = m_sums;
    const auto count = static_cast<double>(m_sums.strokes);
    if (m_sums.strokes > 0)
        result.strokeRate /= count;
    if (!m_analysis.hasSpeed)
        return result;
    result.distance = m_distance;
    if (m_moving > 0)
        result.speed = m_distance / m_moving;
    if (m_sums.strokes > 0 && m_analysis.isBowKnown) {
        result.force = m_force / count;
        result.power = m_power / count;
        result.impulse = m_impulse / count;
    }
    return result;
}

} // namespace strokes

StretchFigures figuresBetween(const MotionAnalysis& analysis, double start, double end) {
    strokes::StretchSums sums(analysis);
    sums.add(start, end);
    return sums.figures();
}

} // namespace kavela
