#include "boatmotion/strokes/turns.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double TurnBand = 0.7;     // Hz
constexpr double SeedRate = 0.30;    // rad/s, that begins a turn
constexpr double EdgeRate = 0.15;    // rad/s, down to which it reaches
constexpr double LongestPause = 0.6; // s, between two halves of one turn
constexpr double PushOut = 1;        // s after the end

/// A turn as a range of indexes, its end not included.
struct Stretch {
    std::size_t begin = 0;
    std::size_t end = 0;
    double sign = 1;
};

/// Stretches of one sign around a fast moment, as far as the rate stays above the edge.
std::vector<Stretch> seeded(std::span<const double> rate, std::span<const std::uint8_t> valid) {
    std::vector<Stretch> found;
    for (std::size_t i = 0; i < rate.size();) {
        const double sign = rate[i] < 0 ? -1 : 1;
        std::size_t end = i;
        double greatest = 0;
        while (end < rate.size() && valid[end] && sign * rate[end] >= EdgeRate)
            greatest = std::max(greatest, sign * rate[end++]);
        if (greatest >= SeedRate)
            found.push_back({i, end, sign});
        i = std::max(end, i + 1);
    }
    return found;
}

std::vector<Stretch> joined(const std::vector<Stretch>& stretches,
                            std::span<const std::uint8_t> valid) {
    constexpr auto Pause = static_cast<std::size_t>(LongestPause * Rate);
    std::vector<Stretch> result;
    for (const Stretch& stretch : stretches) {
        const bool continues =
            !result.empty() && result.back().sign == stretch.sign &&
            stretch.begin - result.back().end < Pause &&
            std::all_of(valid.begin() + static_cast<std::ptrdiff_t>(result.back().end),
                        valid.begin() + static_cast<std::ptrdiff_t>(stretch.begin),
                        [](std::uint8_t isValid) { return isValid != 0; });
        if (continues)
            result.back().end = stretch.end;
        else
            result.push_back(stretch);
    }
    return result;
}

double mean(std::span<const double> values, std::size_t begin, std::size_t end) {
    double sum = 0;
    for (std::size_t i = begin; i < end; ++i)
        sum += values[i];
    return sum / static_cast<double>(end - begin);
}

std::size_t fastest(std::span<const double> rate, const Stretch& stretch) {
    std::size_t best = stretch.begin;
    for (std::size_t i = stretch.begin; i < stretch.end; ++i)
        if (stretch.sign * rate[i] > stretch.sign * rate[best])
            best = i;
    return best;
}

/// How the boat leaves a turn.
void measurePushOut(const MotionSeries& series, std::size_t peak, std::size_t end,
                    smartRotation& values) {
    const std::size_t last =
        std::min(end + static_cast<std::size_t>(PushOut * Rate), series.size());
    double count = 0;
    double sum = 0;
    for (std::size_t i = peak; i < last; ++i) {
        const double push = series.forward[i];
        if (!series.valid[i] || push <= 0)
            continue;
        values.pushOutPeak = std::max(values.pushOutPeak, push);
        sum += push;
        count += 1;
    }
    values.pushOutAve = count > 0 ? sum / count : 0;
}

Turn measuredTurn(const MotionSeries& series, std::span<const double> yawRate3,
                  const Stretch& stretch) {
    Turn turn;
    turn.start = series.time[stretch.begin];
    turn.end = series.time[stretch.end - 1] + Step;
    for (std::size_t i = stretch.begin; i < stretch.end; ++i)
        turn.angle += series.yawRate[i] * Step;
    const std::size_t peak = fastest(yawRate3, stretch);
    turn.peak = series.time[peak];
    turn.values.rotationTime = turn.end - turn.start;
    turn.values.rotSpeedPeak = std::abs(yawRate3[peak]);
    turn.values.aveRotSpeed = std::abs(turn.angle) / turn.values.rotationTime;
    measurePushOut(series, peak, stretch.end, turn.values);
    // A boat that turns left leans inside when its port side is down.
    turn.values.aveRoll = -stretch.sign * mean(series.roll, stretch.begin, stretch.end);
    turn.values.avePitch = mean(series.pitch, stretch.begin, stretch.end);
    return turn;
}

} // namespace

std::vector<Turn> findTurns(const MotionSeries& series, std::span<const double> yawRate3,
                            const MotionProfile& profile) {
    std::vector<double> slow = series.yawRate;
    filterBothWays<1>({lowPass(TurnBand)}, {std::span(slow)});
    std::vector<Turn> turns;
    for (const Stretch& stretch : joined(seeded(slow, series.valid), series.valid)) {
        const Turn turn = measuredTurn(series, yawRate3, stretch);
        const double peak = std::abs(slow[fastest(slow, stretch)]);
        if (std::abs(turn.angle) >= profile.leastTurnAngle && peak >= profile.leastTurnPeak)
            turns.push_back(turn);
    }
    return turns;
}

} // namespace kavela::strokes
