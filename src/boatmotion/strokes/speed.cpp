#include "boatmotion/strokes/speed.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double SpeedGain = 0.42;       // of the difference at a fix, one second after the last
constexpr double BiasGain = 0.054;       // 1/s
constexpr double GreatestBias = 0.6;     // m/s²
constexpr double GreatestBoatSpeed = 10; // m/s
constexpr double FreshFix = 1.5;         // s, for which a pass counts in full

/// A moment's estimate of one pass.
struct Estimate {
    double speed = 0;
    double bias = 0;
    double sinceFix = 0; ///< s

    /// Moves on by a time, under an acceleration along the direction of the pass.
    void advance(double seconds, double acceleration) {
        sinceFix += seconds;
        if (sinceFix < 4 * FreshFix) // beyond, the integral is worth less than the last speed
            speed =
                std::clamp(speed + acceleration * seconds, -GreatestBoatSpeed, GreatestBoatSpeed);
    }

    /// Takes in a fix; `direction` is -1 in the pass from the end.
    void correct(double fixedSpeed, double direction) {
        const double seconds = std::min(sinceFix, 10.0);
        const double error = fixedSpeed - speed;
        speed += (1 - std::pow(1 - SpeedGain, seconds)) * error;
        const double step = std::min(seconds, 2.0) * BiasGain * error;
        bias = std::clamp(bias - direction * step, -GreatestBias, GreatestBias);
        sinceFix = 0;
    }

    [[nodiscard]] double weight() const {
        const double stale = std::max(0.0, sinceFix - FreshFix);
        return 1 / (1 + stale * stale);
    }
};

/// The estimate before the first fix: the speed of that fix.
Estimate startAt(const SpeedFix& fix, double bias) {
    return {fix.speed, bias, 1};
}

} // namespace

bool canTellSpeed(const MotionGrid& grid, std::span<const SpeedFix> fixes) {
    constexpr std::ptrdiff_t LeastFixes = 5;
    constexpr double LongestSilence = 10; // s for each fix, on average
    if (grid.size() == 0)
        return false;
    const auto within = std::count_if(fixes.begin(), fixes.end(), [&](const SpeedFix& fix) {
        return fix.time >= grid.time.front() - 2 && fix.time <= grid.time.back() + 2;
    });
    const double seconds = static_cast<double>(grid.size()) * Step;
    return within >= LeastFixes && static_cast<double>(within) * LongestSilence >= seconds;
}

std::vector<double> joinSpeed(const MotionGrid& grid, std::vector<double>& forward,
                              std::span<const SpeedFix> fixes, double lag) {
    const std::size_t size = grid.size();
    std::vector<double> speed(size);
    std::vector<double> bias(size);
    std::vector<double> weight(size);
    Estimate estimate = startAt(fixes.front(), 0);
    const auto step = [&](std::size_t i, std::size_t before, double direction) {
        const double seconds = std::abs(grid.time[i] - grid.time[before]);
        const double pull = (forward[i] + forward[before]) / 2 - estimate.bias;
        estimate.advance(seconds, grid.valid[i] ? direction * pull : 0);
    };
    std::size_t next = 0;
    for (std::size_t i = 0; i < size; ++i) {
        step(i, i > 0 ? i - 1 : 0, 1);
        for (; next < fixes.size() && fixes[next].time - lag <= grid.time[i]; ++next)
            estimate.correct(fixes[next].speed, 1);
        weight[i] = estimate.weight();
        speed[i] = weight[i] * estimate.speed;
        bias[i] = weight[i] * estimate.bias;
    }
    next = fixes.size();
    estimate = startAt(fixes.back(), estimate.bias);
    for (std::size_t i = size; i-- > 0;) {
        step(i, i + 1 < size ? i + 1 : i, -1);
        for (; next > 0 && fixes[next - 1].time - lag >= grid.time[i]; --next)
            estimate.correct(fixes[next - 1].speed, -1);
        const double own = estimate.weight();
        speed[i] = std::max(0.0, (speed[i] + own * estimate.speed) / (weight[i] + own));
        if (grid.valid[i])
            bias[i] = (bias[i] + own * estimate.bias) / (weight[i] + own);
        else
            bias[i] = 0;
    }
    for (std::size_t i = 0; i < size; ++i)
        forward[i] -= bias[i];
    return speed;
}

} // namespace kavela::strokes
