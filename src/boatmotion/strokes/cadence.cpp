#include "boatmotion/strokes/cadence.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr std::size_t Thinning = 2; // the signal holds nothing above 4 Hz
constexpr double ThinRate = Rate / static_cast<double>(Thinning);
constexpr std::size_t Window = 150;     // thinned values: 6 s
constexpr std::size_t Hop = 25;         // 1 s
constexpr double ShortestPeriod = 0.42; // s
constexpr double LongestPeriod = 1.8;   // s
constexpr auto FirstLag = static_cast<std::size_t>(ShortestPeriod * ThinRate) - 1;
constexpr auto LastLag = static_cast<std::size_t>(LongestPeriod * ThinRate) + 1;
constexpr double LeastCorrelation = 0.35;
constexpr double ShareOfGreatest = 0.8;

using Correlations = std::array<float, LastLag + 1>;

float product(const float* a, const float* b, std::size_t count) {
    // Eight sums side by side are what the compiler can turn into vectors.
    std::array<float, 8> sums{};
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8)
        for (std::size_t k = 0; k < 8; ++k)
            sums[k] += a[i + k] * b[i + k];
    for (; i < count; ++i)
        sums[0] += a[i] * b[i];
    float sum = 0;
    for (const float part : sums)
        sum += part;
    return sum;
}

Correlations correlate(const float* window) {
    std::array<float, Window + 1> energy{};
    for (std::size_t i = 0; i < Window; ++i)
        energy[i + 1] = energy[i] + window[i] * window[i];
    Correlations r{};
    for (std::size_t lag = FirstLag; lag <= LastLag; ++lag) {
        const std::size_t count = Window - lag;
        const float size = energy[count] * (energy[Window] - energy[lag]);
        r[lag] = size > 1e-12F ? product(window, window + lag, count) / std::sqrt(size) : 0;
    }
    return r;
}

/// The lag of the first peak that comes near the greatest, between the values; 0 when none.
double firstPeriod(const Correlations& r) {
    const auto isPeak = [&](std::size_t lag) {
        return r[lag] >= r[lag - 1] && r[lag] > r[lag + 1];
    };
    float greatest = 0;
    for (std::size_t lag = FirstLag + 1; lag < LastLag; ++lag)
        if (isPeak(lag))
            greatest = std::max(greatest, r[lag]);
    if (greatest < static_cast<float>(LeastCorrelation))
        return 0;
    for (std::size_t lag = FirstLag + 1; lag < LastLag; ++lag)
        if (isPeak(lag) && r[lag] >= static_cast<float>(ShareOfGreatest) * greatest) {
            const double bend = r[lag - 1] - 2 * r[lag] + r[lag + 1];
            const double shift = bend < 0 ? 0.5 * (r[lag - 1] - r[lag + 1]) / bend : 0;
            return (static_cast<double>(lag) + shift) / ThinRate;
        }
    return 0;
}

/// Each entry becomes the median of the known ones among the five around it.
std::vector<double> smoothed(const std::vector<double>& periods) {
    std::vector<double> result(periods.size());
    for (std::size_t i = 0; i < periods.size(); ++i) {
        std::array<double, 5> known{};
        std::size_t count = 0;
        for (std::size_t k = i < 2 ? 0 : i - 2; k < std::min(i + 3, periods.size()); ++k)
            if (periods[k] > 0)
                known[count++] = periods[k];
        if (count > 0)
            result[i] = percentileOf(std::span(known).first(count), 0.5);
    }
    return result;
}

} // namespace

std::vector<double> cadence(std::span<const double> signal) {
    std::vector<float> thin(signal.size() / Thinning);
    for (std::size_t i = 0; i < thin.size(); ++i)
        thin[i] =
            static_cast<float>(std::clamp((signal[2 * i] + signal[2 * i + 1]) / 2, -1e3, 1e3));
    std::vector<double> periods(thin.size() / Hop + 1);
    for (std::size_t i = 0; i < periods.size() && thin.size() >= Window; ++i) {
        const std::size_t middle = i * Hop;
        const std::size_t begin = middle < Window / 2 ? 0 : middle - Window / 2;
        periods[i] = firstPeriod(correlate(&thin[std::min(begin, thin.size() - Window)]));
    }
    return smoothed(periods);
}

double cadenceAt(std::span<const double> periods, std::size_t index) {
    constexpr std::size_t PerEntry = Thinning * Hop;
    return periods[std::min((index + PerEntry / 2) / PerEntry, periods.size() - 1)];
}

} // namespace kavela::strokes
