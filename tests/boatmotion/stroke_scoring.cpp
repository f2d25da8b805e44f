#include "boatmotion/stroke_scoring.h"

#include <algorithm>
#include <cmath>

namespace kavela::test {

namespace {

/// A stroke as the matching sees it.
struct Mark {
    double peak = 0;
    double next = 0; ///< time to the next one
    std::size_t index = 0;
};

template <class PeakOf>
std::vector<Mark> marksOutsideGaps(const Simulation& truth, std::size_t count, PeakOf peakOf) {
    constexpr double Margin = 0.5;
    std::vector<Mark> marks;
    for (std::size_t i = 0; i < count; ++i) {
        const double peak = peakOf(i);
        const bool isNearGap =
            std::any_of(truth.gaps.begin(), truth.gaps.end(), [&](const Gap& gap) {
                return peak > gap.begin - Margin && peak < gap.end + Margin;
            });
        if (!isNearGap)
            marks.push_back({peak, 10, i});
        if (marks.size() > 1)
            marks[marks.size() - 2].next = marks.back().peak - marks[marks.size() - 2].peak;
    }
    return marks;
}

/// Pairs in the order of time.
std::vector<std::pair<std::size_t, std::size_t>> matched(const std::vector<Mark>& truth,
                                                         const std::vector<Mark>& found) {
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    std::size_t next = 0;
    for (const Mark& mark : truth) {
        const double tolerance = std::min(0.30, 0.45 * mark.next);
        while (next < found.size() && found[next].peak < mark.peak - tolerance)
            ++next;
        std::size_t best = next;
        for (std::size_t i = next; i < found.size() && found[i].peak <= mark.peak + tolerance; ++i)
            if (std::abs(found[i].peak - mark.peak) < std::abs(found[best].peak - mark.peak))
                best = i;
        if (best >= found.size() || std::abs(found[best].peak - mark.peak) > tolerance)
            continue;
        pairs.emplace_back(mark.index, found[best].index);
        next = best + 1;
    }
    return pairs;
}

/// The mean rate of what lies in a window, from peak to peak.
double rateWithin(const std::vector<Mark>& marks, double begin, double end) {
    double cycles = 0;
    double seconds = 0;
    for (const Mark& mark : marks)
        if (mark.peak >= begin && mark.peak + mark.next < end && mark.next <= 2) {
            cycles += 1;
            seconds += mark.next;
        }
    return cycles >= 5 ? 60 * cycles / seconds : 0;
}

void scoreRates(const Simulation& simulation, const std::vector<Mark>& truth,
                const std::vector<Mark>& found, Score& result) {
    constexpr double Window = 20;
    const double last = simulation.time.back();
    for (double begin = simulation.time.front(); begin + Window <= last; begin += Window) {
        const double real = rateWithin(truth, begin, begin + Window);
        const double shown = rateWithin(found, begin, begin + Window);
        if (real > 0)
            result.rateErrors.push_back((shown - real) / real);
    }
}

void scorePair(const TrueStroke& real, const Stroke& found, Score& result) {
    result.catchErrors.push_back(found.catchTime - real.catchTime);
    result.exitErrors.push_back(found.exitTime - real.exitTime);
    result.impulseErrors.push_back(found.values.impulse / real.impulse - 1);
    result.powerErrors.push_back(found.values.power * found.cycle / real.work - 1);
    const bool isRight = found.values.hand == real.hand;
    (real.inTurn ? result.turningHands : result.straightHands) += 1;
    (real.inTurn ? result.rightTurningHands : result.rightStraightHands) += isRight;
}

void scoreTurns(const Simulation& truth, const MotionAnalysis& analysis, Score& result) {
    const auto overlaps = [](const auto& a, double start, double end) {
        return a.start < end && a.end > start;
    };
    const auto isInGap = [&](const auto& turn) {
        return std::any_of(truth.gaps.begin(), truth.gaps.end(), [&](const Gap& gap) {
            return turn.start < gap.end + 0.5 && turn.end > gap.begin - 0.5;
        });
    };
    for (const TrueTurn& real : truth.turns) {
        if (isInGap(real))
            continue;
        result.trueTurns += 1;
        for (const Turn& turn : analysis.turns)
            if (overlaps(turn, real.start, real.end) && turn.angle * real.angle > 0) {
                result.matchedTurns += 1;
                result.angleErrors.push_back(turn.angle - real.angle);
                break;
            }
    }
    for (const Turn& turn : analysis.turns) {
        result.foundTurns += 1;
        result.falseTurns +=
            std::none_of(truth.turns.begin(), truth.turns.end(), [&](const TrueTurn& real) {
                return overlaps(turn, real.start, real.end) && turn.angle * real.angle > 0;
            });
    }
}

void scoreSpeed(const Simulation& truth, const MotionAnalysis& analysis, Score& result) {
    const MotionSeries& series = analysis.series;
    std::size_t at = 0;
    for (std::size_t i = 0; i < series.size(); i += 25) {
        while (at + 1 < truth.time.size() && truth.time[at] < series.time[i])
            ++at;
        if (series.valid[i])
            result.speedErrors.push_back(series.speed[i] - truth.speed[at]);
    }
}

template <class PeakOf>
std::vector<std::pair<std::size_t, std::size_t>>
scoreCounts(const Simulation& truth, std::size_t count, PeakOf peakOf, Score& result) {
    const std::vector<Mark> real = marksOutsideGaps(
        truth, truth.strokes.size(), [&](std::size_t i) { return truth.strokes[i].peakTime; });
    const std::vector<Mark> found = marksOutsideGaps(truth, count, peakOf);
    const auto pairs = matched(real, found);
    result.trueStrokes = static_cast<double>(real.size());
    result.foundStrokes = static_cast<double>(found.size());
    result.matchedStrokes = static_cast<double>(pairs.size());
    scoreRates(truth, real, found, result);
    return pairs;
}

template <class T>
void append(std::vector<T>& to, const std::vector<T>& from) {
    to.insert(to.end(), from.begin(), from.end());
}

} // namespace

void Score::add(const Score& other) {
    trueStrokes += other.trueStrokes;
    foundStrokes += other.foundStrokes;
    matchedStrokes += other.matchedStrokes;
    straightHands += other.straightHands;
    rightStraightHands += other.rightStraightHands;
    turningHands += other.turningHands;
    rightTurningHands += other.rightTurningHands;
    trueTurns += other.trueTurns;
    foundTurns += other.foundTurns;
    matchedTurns += other.matchedTurns;
    falseTurns += other.falseTurns;
    append(catchErrors, other.catchErrors);
    append(exitErrors, other.exitErrors);
    append(impulseErrors, other.impulseErrors);
    append(powerErrors, other.powerErrors);
    append(rateErrors, other.rateErrors);
    append(speedErrors, other.speedErrors);
    append(angleErrors, other.angleErrors);
}

double medianSize(std::vector<double> errors) {
    if (errors.empty())
        return 0;
    for (double& error : errors)
        error = std::abs(error);
    const auto middle = errors.begin() + static_cast<std::ptrdiff_t>(errors.size() / 2);
    std::nth_element(errors.begin(), middle, errors.end());
    return *middle;
}

Score score(const Simulation& truth, const MotionAnalysis& analysis) {
    Score result;
    const auto pairs = scoreCounts(
        truth, analysis.strokes.size(), [&](std::size_t i) { return analysis.strokes[i].peakTime; },
        result);
    for (const auto& [real, found] : pairs)
        scorePair(truth.strokes[real], analysis.strokes[found], result);
    scoreTurns(truth, analysis, result);
    scoreSpeed(truth, analysis, result);
    return result;
}

Score scorePeaks(const Simulation& truth, const std::vector<double>& peaks) {
    Score result;
    (void)scoreCounts(
        truth, peaks.size(), [&](std::size_t i) { return peaks[i]; }, result);
    return result;
}

std::vector<double> simplePeaks(const Simulation& truth) {
    constexpr std::size_t Reach = 8;  // values of a hundredth of a second
    constexpr double Threshold = 0.4; // m/s²
    constexpr double Refractory = 0.35;
    const std::vector<double>& a = truth.acceleration;
    std::vector<double> sums(a.size() + 1, 0);
    for (std::size_t i = 0; i < a.size(); ++i)
        sums[i + 1] = sums[i] + a[i];
    std::vector<double> smooth(a.size(), 0);
    for (std::size_t i = Reach; i + Reach < a.size(); ++i)
        smooth[i] = (sums[i + Reach + 1] - sums[i - Reach]) / (2 * Reach + 1);
    std::vector<double> peaks;
    for (std::size_t i = 1; i + 1 < a.size(); ++i)
        if (smooth[i] > Threshold && smooth[i] >= smooth[i - 1] && smooth[i] > smooth[i + 1] &&
            (peaks.empty() || truth.time[i] - peaks.back() >= Refractory))
            peaks.push_back(truth.time[i]);
    return peaks;
}

} // namespace kavela::test
