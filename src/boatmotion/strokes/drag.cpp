#include "boatmotion/strokes/drag.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

using namespace strokes;

constexpr double ShortestGlide = 2;  // s
constexpr double LongestGlide = 8;   // s; what follows is drifting
constexpr double Settling = 0.3;     // s after the blade has left the water
constexpr double SlowestGlide = 0.8; // m/s, at its end
constexpr double MostTurning = 0.25; // rad/s, mean over the glide
constexpr double LeastDrag = 2;
constexpr double MostDrag = 12;

/// A range of indexes, its end not included.
struct Glide {
    std::size_t begin = 0;
    std::size_t end = 0;
};

std::size_t indexAt(const MotionSeries& series, double time) {
    return static_cast<std::size_t>(std::lower_bound(series.time.begin(), series.time.end(), time) -
                                    series.time.begin());
}

/// The part of a stretch without strokes on which the boat runs straight and fast enough.
std::optional<Glide> glideWithin(const MotionSeries& series, double from, double to) {
    Glide glide{indexAt(series, from + Settling),
                indexAt(series, std::min(to, from + LongestGlide))};
    std::size_t end = glide.begin;
    double heading = 0;
    while (end < glide.end && series.valid[end] && series.speed[end] > SlowestGlide)
        heading += series.yawRate[end++] * Step;
    const double seconds = static_cast<double>(end - glide.begin) * Step;
    if (seconds < ShortestGlide || std::abs(heading) > MostTurning * seconds)
        return std::nullopt;
    return Glide{glide.begin, end};
}

} // namespace

std::optional<DragCalibration> calibrateDrag(const MotionAnalysis& analysis, double mass) {
    if (!analysis.hasForce())
        return std::nullopt;
    const MotionSeries& series = analysis.series;
    DragCalibration result;
    double slowed = 0;
    double squares = 0;
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i) {
        const bool isLast = i + 1 == analysis.strokes.size();
        const double to = isLast ? series.time.back() : analysis.strokes[i + 1].catchTime;
        const auto glide = glideWithin(series, analysis.strokes[i].exitTime, to);
        if (!glide)
            continue;
        result.glides += 1;
        result.seconds += static_cast<double>(glide->end - glide->begin) * Step;
        slowed += series.speed[glide->begin] - series.speed[glide->end - 1];
        for (std::size_t k = glide->begin; k < glide->end; ++k)
            squares += series.speed[k] * series.speed[k] * Step;
    }
    if (result.glides == 0 || !(slowed > 0))
        return std::nullopt;
    result.drag = std::clamp(mass * slowed / squares, LeastDrag, MostDrag);
    return result;
}

} // namespace kavela
