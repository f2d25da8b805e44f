#include "boatmotion/strokes/water_tests.h"
#include "planning/test_from_motion.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr std::size_t EightsOfTest = 5;

/// The longest row of eights that follow each other without a turn between them.
std::span<const Eight> longestRow(std::span<const Eight> eights) {
    std::span<const Eight> longest;
    std::size_t first = 0;
    for (std::size_t i = 0; i < eights.size(); ++i) {
        if (i > first && eights[i].firstTurn != eights[i - 1].secondTurn + 1)
            first = i;
        if (i + 1 - first > longest.size())
            longest = eights.subspan(first, i + 1 - first);
    }
    return longest;
}

} // namespace

std::vector<double> suggestedLaps(const MotionAnalysis& motion, std::size_t laps) {
    if (motion.strokes.empty())
        return {};
    const double start = motion.strokes.front().catchTime;
    std::vector<double> moments{start};
    std::vector<double> turns;
    for (const Turn& turn : motion.turns)
        if (turn.peak > start)
            turns.push_back(turn.peak);
    for (std::size_t i = 1; i < turns.size() && moments.size() <= laps; i += 2)
        moments.push_back(turns[i]);
    const double last = motion.strokes.back().exitTime;
    const bool isUnderWay = turns.size() % 2 == 1 || moments.size() == 1;
    if (isUnderWay && moments.size() <= laps && last > moments.back())
        moments.push_back(last);
    return moments;
}

std::vector<double> suggestedSprint(const MotionAnalysis& motion) {
    const std::optional<Sprint> sprint = bestSprint(motion);
    if (!sprint)
        return {};
    const auto& [start, end] = std::pair(sprint->figures.start, sprint->figures.end);
    std::vector<double> moments;
    for (std::size_t i = 0; i <= water_test::SprintStretches; ++i)
        moments.push_back(start + (end - start) * static_cast<double>(i) /
                                      static_cast<double>(water_test::SprintStretches));
    return moments;
}

std::vector<double> suggestedEights(const MotionAnalysis& motion) {
    const std::vector<Eight> eights = findEights(motion);
    std::vector<double> moments;
    for (const Eight& eight :
         longestRow(eights).first(std::min(longestRow(eights).size(), EightsOfTest))) {
        if (moments.empty())
            moments.push_back(eight.figures.start);
        moments.push_back(eight.figures.end);
    }
    return moments;
}

} // namespace kavela
