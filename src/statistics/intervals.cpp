#include "statistics/intervals.h"

#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/students_t.hpp>

#include <cmath>
#include <numeric>
#include <stdexcept>

namespace kavela {

namespace {

constexpr double Tail = (1 - Confidence) / 2;

Interval byStudentT(double middle, double standardError, std::size_t degrees) {
    const boost::math::students_t_distribution<double> student(static_cast<double>(degrees));
    const double reach = boost::math::quantile(complement(student, Tail)) * standardError;
    return {middle - reach, middle + reach};
}

double sumOf(std::span<const double> values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

double chiSquared(double degrees, double fraction) {
    return boost::math::quantile(boost::math::chi_squared_distribution<double>(degrees), fraction);
}

} // namespace

MeanOf meanOf(std::span<const double> values) {
    MeanOf mean{values.size(), 0, std::nullopt};
    if (values.empty())
        return mean;
    const auto n = static_cast<double>(values.size());
    mean.mean = sumOf(values) / n;
    if (values.size() < LeastValues)
        return mean;
    double squares = 0;
    for (const double value : values)
        squares += (value - mean.mean) * (value - mean.mean);
    mean.interval = byStudentT(mean.mean, std::sqrt(squares / (n - 1) / n), values.size() - 1);
    return mean;
}

RatioOf ratioOf(std::span<const double> parts, std::span<const double> wholes) {
    if (parts.size() != wholes.size())
        throw std::invalid_argument("a ratio needs a whole for each part");
    RatioOf ratio{parts.size(), 0, std::nullopt};
    const double whole = sumOf(wholes);
    if (whole == 0)
        return ratio;
    const double q = sumOf(parts) / whole;
    ratio.percent = 100 * q;
    if (parts.size() < LeastValues)
        return ratio;
    double squares = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const double rest = parts[i] - q * wholes[i];
        squares += rest * rest;
    }
    const auto n = static_cast<double>(parts.size());
    const double standardError = std::sqrt(n / (n - 1) * squares) / std::abs(whole);
    ratio.interval = byStudentT(ratio.percent, 100 * standardError, parts.size() - 1);
    return ratio;
}

SlopeOf slopeOf(std::span<const double> x, std::span<const double> y) {
    if (x.size() != y.size())
        throw std::invalid_argument("a point needs both its numbers");
    SlopeOf slope{x.size(), 0, std::nullopt};
    if (x.empty())
        return slope;
    const double xMean = sumOf(x) / static_cast<double>(x.size());
    const double yMean = sumOf(y) / static_cast<double>(y.size());
    double xx = 0;
    double xy = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        xx += (x[i] - xMean) * (x[i] - xMean);
        xy += (x[i] - xMean) * (y[i] - yMean);
    }
    if (!(xx > 0))
        return slope;
    slope.slope = xy / xx;
    if (x.size() < LeastValues)
        return slope;
    double squares = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double rest = y[i] - yMean - slope.slope * (x[i] - xMean);
        squares += rest * rest;
    }
    const std::size_t degrees = x.size() - 2;
    slope.interval =
        byStudentT(slope.slope, std::sqrt(squares / static_cast<double>(degrees) / xx), degrees);
    return slope;
}

std::optional<RateOf> rateOf(std::size_t count, std::size_t of) {
    if (count > of)
        throw std::invalid_argument("something happened more often than it could");
    if (of == 0)
        return std::nullopt;
    const auto x = static_cast<double>(count);
    return RateOf{count, of, x / static_cast<double>(of), rateInterval(x, of)};
}

Interval rateInterval(double count, std::size_t of) {
    const auto n = static_cast<double>(of);
    if (of == 0 || !(count >= 0 && count <= n))
        throw std::invalid_argument("something happened more often than it could");
    const double z = boost::math::quantile(complement(boost::math::normal(), Tail));
    const double rate = count / n;
    const double scale = 1 + z * z / n;
    const double middle = (rate + z * z / (2 * n)) / scale;
    const double reach = z / scale * std::sqrt(rate * (1 - rate) / n + z * z / (4 * n * n));
    // At both ends one bound is the rate itself, which rounding would miss by a hair.
    return {count > 0 ? middle - reach : 0, count < n ? middle + reach : 1};
}

Interval poissonInterval(std::size_t count, double units) {
    if (!(units > 0))
        throw std::invalid_argument("a mean needs something that it is the mean of");
    const auto x = static_cast<double>(count);
    const double low = count == 0 ? 0 : chiSquared(2 * x, Tail) / 2;
    return {low / units, chiSquared(2 * x + 2, 1 - Tail) / 2 / units};
}

} // namespace kavela
