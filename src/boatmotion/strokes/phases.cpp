#include "boatmotion/strokes/phases.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double ShareOfPeak = 0.15;   // of the force at catch and exit
constexpr double LowestBase = -0.10;   // of the peak
constexpr std::size_t PhaseReach = 45; // 0.9 s, on either side of the peak at most

/// The stretch around a stroke that is its own.
struct Surroundings {
    std::size_t begin = 0; ///< index of the valley before
    std::size_t end = 0;   ///< index of the valley after
};

std::size_t lowest(std::span<const double> force, std::size_t begin, std::size_t end) {
    const auto first = force.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto last = force.begin() + static_cast<std::ptrdiff_t>(end) + 1;
    return static_cast<std::size_t>(std::min_element(first, last) - force.begin());
}

/// The valleys of the force between a stroke and its neighbours, or as far as one reaches.
std::vector<Surroundings> surroundings(std::span<const double> force,
                                       std::span<const Swing> strokes) {
    std::vector<Surroundings> around(strokes.size());
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        const std::size_t peak = strokes[i].peak;
        const bool follows = i > 0 && peak - strokes[i - 1].peak < 2 * PhaseReach;
        if (follows)
            around[i].begin = around[i - 1].end = lowest(force, strokes[i - 1].peak, peak);
        else
            around[i].begin = lowest(force, peak < PhaseReach ? 0 : peak - PhaseReach, peak);
        around[i].end = lowest(force, peak, std::min(peak + PhaseReach, force.size() - 1));
    }
    return around;
}

/// The fractional index at which the force passes a threshold between two neighbours.
double crossing(std::span<const double> force, std::size_t below, std::size_t above,
                double threshold) {
    const double rise = force[above] - force[below];
    const double part = rise > 0 ? (threshold - force[below]) / rise : 0;
    const double from = static_cast<double>(below);
    return from + std::clamp(part, 0.0, 1.0) * (static_cast<double>(above) - from);
}

WaterPhase phaseOf(std::span<const double> force, const Surroundings& around, const Swing& swing) {
    const auto first = force.begin() + static_cast<std::ptrdiff_t>(around.begin);
    const auto last = force.begin() + static_cast<std::ptrdiff_t>(around.end) + 1;
    const auto peak = static_cast<std::size_t>(std::max_element(first, last) - force.begin());
    const double base = std::max(*std::min_element(first, last), LowestBase * force[peak]);
    const double threshold = base + ShareOfPeak * force[peak];
    std::size_t caught = peak;
    while (caught > around.begin && force[caught - 1] > threshold)
        --caught;
    std::size_t left = peak;
    while (left < around.end && force[left + 1] > threshold)
        ++left;
    WaterPhase phase{.peak = peak, .swing = swing};
    phase.catchAt = caught > around.begin ? crossing(force, caught - 1, caught, threshold)
                                          : static_cast<double>(caught);
    phase.exitAt =
        left < around.end ? crossing(force, left + 1, left, threshold) : static_cast<double>(left);
    return phase;
}

bool isSound(const WaterPhase& phase, std::span<const std::uint8_t> valid) {
    const auto begin = static_cast<std::size_t>(phase.catchAt);
    const auto end = std::min(static_cast<std::size_t>(phase.exitAt) + 1, valid.size() - 1);
    for (std::size_t i = begin; i <= end; ++i)
        if (!valid[i])
            return false;
    return phase.exitAt - phase.catchAt > 2; // at 50 a second, less is no stroke
}

} // namespace

std::vector<WaterPhase> waterPhases(const StrokeView& view, std::span<const Swing> strokes) {
    const std::span<const double> force = view.series.force;
    const std::vector<Surroundings> around = surroundings(force, strokes);
    std::vector<WaterPhase> phases;
    phases.reserve(strokes.size());
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        const WaterPhase phase = phaseOf(force, around[i], strokes[i]);
        if (isSound(phase, view.series.valid))
            phases.push_back(phase);
    }
    return phases;
}

} // namespace kavela::strokes
