#include "boatmotion/strokes/filters.h"
#include "boatmotion/strokes/stretch_figures.h"

#include <algorithm>

namespace kavela {

namespace {

using namespace strokes;

constexpr double SprintSeconds = 30;
constexpr double LeastSeconds = 5;

/// The work of the hull up to each value of the series, J.
std::vector<double> workUpTo(const MotionSeries& series) {
    std::vector<double> work(series.size() + 1, 0);
    for (std::size_t i = 0; i < series.size(); ++i) {
        const double power = std::max(0.0, series.force[i]) * series.speed[i];
        work[i + 1] = work[i] + (series.valid[i] ? power * Step : 0);
    }
    return work;
}

double endOfSprint(const MotionAnalysis& analysis, double start) {
    return std::min(start + SprintSeconds, analysis.series.time.back());
}

/// Mean power and its extremes over 5 s.
void measurePower(const MotionAnalysis& analysis, const std::vector<double>& work, Sprint& sprint) {
    const auto [first, last] =
        valuesBetween(analysis.series, sprint.figures.start, sprint.figures.end);
    constexpr auto Window = static_cast<std::size_t>(LeastSeconds * Rate);
    if (last - first < Window)
        return;
    sprint.meanPower = (work[last] - work[first]) / (static_cast<double>(last - first) * Step);
    double best = 0;
    double worst = (work[first + Window] - work[first]) / LeastSeconds;
    for (std::size_t i = first; i + Window <= last; ++i) {
        const double power = (work[i + Window] - work[i]) / LeastSeconds;
        best = std::max(best, power);
        worst = std::min(worst, power);
    }
    sprint.best5 = best;
    sprint.worst5 = worst;
    if (best > 0)
        sprint.fatigue = 100 * (best - worst) / best;
    sprint.vMax =
        *std::max_element(analysis.series.speed.begin() + static_cast<std::ptrdiff_t>(first),
                          analysis.series.speed.begin() + static_cast<std::ptrdiff_t>(last));
}

Sprint sprintBetween(const MotionAnalysis& analysis, double start, double end) {
    Sprint sprint{.figures = figuresBetween(analysis, start, end)};
    const auto [first, last] = strokesBetween(analysis, start, end);
    std::vector<double> rates;
    for (std::size_t i = first; i < last; ++i)
        rates.push_back(analysis.strokes[i].values.strokeRate);
    sprint.medianRate = percentileOf(rates, 0.5);
    if (analysis.hasForce())
        measurePower(analysis, workUpTo(analysis.series), sprint);
    return sprint;
}

} // namespace

std::optional<Sprint> sprintFrom(const MotionAnalysis& analysis, std::size_t stroke) {
    if (stroke >= analysis.strokes.size())
        return std::nullopt;
    const double start = analysis.strokes[stroke].catchTime;
    const double end = endOfSprint(analysis, start);
    if (end - start < LeastSeconds)
        return std::nullopt;
    return sprintBetween(analysis, start, end);
}

std::optional<Sprint> bestSprint(const MotionAnalysis& analysis) {
    const std::vector<double> work = workUpTo(analysis.series);
    std::size_t best = 0;
    double most = -1;
    for (std::size_t i = 0; i < analysis.strokes.size(); ++i) {
        const double start = analysis.strokes[i].catchTime;
        const bool isFull = start + SprintSeconds <= analysis.series.time.back();
        if (!isFull)
            break; // of a recording that is shorter than a sprint, the first stroke begins it
        const auto [first, last] = valuesBetween(analysis.series, start, start + SprintSeconds);
        const auto [from, to] = strokesBetween(analysis, start, start + SprintSeconds);
        const double value =
            analysis.hasForce() ? work[last] - work[first] : static_cast<double>(to - from);
        if (value > most) {
            most = value;
            best = i;
        }
    }
    return sprintFrom(analysis, best);
}

} // namespace kavela
