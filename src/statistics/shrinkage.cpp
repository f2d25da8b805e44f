#include "statistics/shrinkage.h"

#include "statistics/intervals.h"

#include <boost/math/distributions/beta.hpp>

#include <algorithm>
#include <stdexcept>

namespace kavela {

namespace {

constexpr double UsualStrength = 20;

double rateIn(const CountOf& row) {
    return static_cast<double>(row.count) / static_cast<double>(row.of);
}

/// Chances of all rows, and what the spread of the rates needs of them.
struct Sums {
    double rows = 0;    ///< those with a chance
    double count = 0;   ///< Σx
    double of = 0;      ///< Σn
    double squares = 0; ///< Σn²
};

Sums sumsOf(std::span<const CountOf> rows) {
    Sums sums;
    for (const CountOf& row : rows) {
        if (row.count > row.of)
            throw std::invalid_argument("something happened more often than it could");
        const auto n = static_cast<double>(row.of);
        sums.rows += row.of > 0 ? 1 : 0;
        sums.count += static_cast<double>(row.count);
        sums.of += n;
        sums.squares += n * n;
    }
    return sums;
}

double strengthOf(std::span<const CountOf> rows, const Sums& sums, double mean) {
    constexpr double LeastRows = 3;
    constexpr double LeastLikeness = 1.0 / 2001;
    constexpr double MostLikeness = 0.5;
    const double own = sums.rows - 1;
    const double between = sums.rows < LeastRows ? 0 : sums.of - sums.squares / sums.of - own;
    // Rows of one chance each are all or nothing whatever their rates are.
    if (between <= 0)
        return UsualStrength;
    double spread = 0;
    for (const CountOf& row : rows)
        if (row.of > 0)
            spread += static_cast<double>(row.of) * (rateIn(row) - mean) * (rateIn(row) - mean);
    const double variance = mean * (1 - mean);
    const double likeness =
        std::clamp((spread - variance * own) / (variance * between), LeastLikeness, MostLikeness);
    return (1 - likeness) / likeness;
}

} // namespace

CommonRate commonRate(std::span<const CountOf> rows) {
    const Sums sums = sumsOf(rows);
    const double mean = (sums.count + 0.5) / (sums.of + 1);
    return {mean, strengthOf(rows, sums, mean)};
}

ShrunkRate shrunkRate(const CountOf& row, const CommonRate& common) {
    if (row.count > row.of)
        throw std::invalid_argument("something happened more often than it could");
    const double happened = common.mean * common.strength + static_cast<double>(row.count);
    const double missed =
        (1 - common.mean) * common.strength + static_cast<double>(row.of - row.count);
    if (!(happened > 0 && missed > 0))
        throw std::invalid_argument("the common rate must lie between 0 and 1");
    const boost::math::beta_distribution<double> rate(happened, missed);
    constexpr double Outside = (1 - Confidence) / 2;
    return {happened / (happened + missed),
            {quantile(rate, Outside), quantile(complement(rate, Outside))},
            cdf(complement(rate, common.mean))};
}

} // namespace kavela
