#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::strokes {

namespace {

struct Prewarped {
    double k2, a0, a1, a2;
};

/// The bilinear transform of the second-order Butterworth prototype.
Prewarped prewarped(double hertz) {
    const double k = std::tan(std::numbers::pi * hertz / Rate);
    const double root = std::numbers::sqrt2 * k;
    return {k * k, 1 + root + k * k, 2 * (k * k - 1), 1 - root + k * k};
}

double medianOfFive(double a, double b, double c, double d, double e) {
    const double low = std::max(std::min(a, b), std::min(c, d));
    const double high = std::min(std::max(a, b), std::max(c, d));
    return std::max(std::min(low, high), std::min(std::max(low, high), e));
}

} // namespace

Section lowPass(double hertz) {
    const Prewarped p = prewarped(hertz);
    const double gain = p.k2 / p.a0;
    return {gain, 2 * gain, gain, p.a1 / p.a0, p.a2 / p.a0};
}

Section highPass(double hertz) {
    const Prewarped p = prewarped(hertz);
    const double gain = 1 / p.a0;
    return {gain, -2 * gain, gain, p.a1 / p.a0, p.a2 / p.a0};
}

std::vector<double> movingMean(std::span<const double> values, double seconds) {
    const auto size = static_cast<std::ptrdiff_t>(values.size());
    const auto half = static_cast<std::ptrdiff_t>(std::lround(seconds * Rate / 2));
    std::vector<double> means(values.size());
    double sum = 0;
    for (std::ptrdiff_t i = 0; i < std::min(half, size); ++i)
        sum += values[static_cast<std::size_t>(i)];
    for (std::ptrdiff_t i = 0; i < size; ++i) {
        if (i + half < size)
            sum += values[static_cast<std::size_t>(i + half)];
        if (i - half - 1 >= 0)
            sum -= values[static_cast<std::size_t>(i - half - 1)];
        const auto count = std::min(i + half, size - 1) - std::max(i - half, std::ptrdiff_t{0}) + 1;
        means[static_cast<std::size_t>(i)] = sum / static_cast<double>(count);
    }
    return means;
}

void removeHits(std::span<double> values) {
    if (values.size() < 5)
        return;
    double a = values[0];
    double b = values[1];
    for (std::size_t i = 2; i + 2 < values.size(); ++i) {
        const double c = values[i];
        values[i] = medianOfFive(a, b, c, values[i + 1], values[i + 2]);
        a = b;
        b = c;
    }
}

double percentileOf(std::span<double> values, double fraction) {
    if (values.empty())
        return 0;
    const double place = fraction * static_cast<double>(values.size() - 1);
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(std::lround(place));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

double sparseMedian(std::span<const double> values, std::size_t stride) {
    std::vector<double> some;
    some.reserve(values.size() / stride + 1);
    for (std::size_t i = 0; i < values.size(); i += stride)
        some.push_back(values[i]);
    return percentileOf(some, 0.5);
}

} // namespace kavela::strokes
