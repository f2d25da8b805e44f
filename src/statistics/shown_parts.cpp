#include "statistics/shown_parts.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace kavela {

namespace {

/// Hundredths that a whole number can hold, whatever a damaged file says.
double inHundredths(double part) {
    constexpr double Most = 9e15;
    return std::isnan(part) ? 0 : std::clamp(100 * part, -Most, Most);
}

/// The whole hundredths to which the parts are brought: the shown total, unless more lies between
/// it and them than the rounding of both.
double hundredthsToMeet(std::span<const double> parts, double total) {
    double sum = 0;
    for (const double part : parts)
        sum += inHundredths(part);
    return std::round(std::abs(100 * total - sum) <= 1 ? 100 * total : sum);
}

} // namespace

std::vector<std::int64_t> shownParts(std::span<const double> parts, double total) {
    constexpr double Likeness = 1e6;
    std::vector<std::int64_t> shown;
    std::vector<double> remainders;
    double floors = 0;
    for (const double part : parts) {
        const double hundredths = inHundredths(part);
        const double whole = std::floor(hundredths);
        shown.push_back(static_cast<std::int64_t>(whole));
        // Equal ones may differ in their last digits.
        remainders.push_back(std::round((hundredths - whole) * Likeness));
        floors += whole;
    }
    const double missing =
        std::clamp(hundredthsToMeet(parts, total) - floors, 0.0, static_cast<double>(parts.size()));

    std::vector<std::size_t> order(parts.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, std::greater<>(), [&](std::size_t i) { return remainders[i]; });
    order.resize(static_cast<std::size_t>(missing));
    for (const std::size_t i : order)
        ++shown[i];
    return shown;
}

} // namespace kavela
