#pragma once

#include "common/interval.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

/// Intervals of 90 % around means, rates and counts.
namespace kavela {

inline constexpr double Confidence = 0.9;

/// Fewer values than these tell nothing of a spread: no interval.
inline constexpr std::size_t LeastValues = 3;

/// A mean and where the true one lies, by Student's t with n − 1 degrees of freedom.
struct MeanOf {
    std::size_t n = 0;
    double mean = 0;                  ///< 0 when n is 0
    std::optional<Interval> interval; ///< none below LeastValues
};

[[nodiscard]] MeanOf meanOf(std::span<const double> values);

/// A sum of one quantity in percent of the sum of another, over n pairs: a ratio estimator
/// (Cochran, Sampling Techniques, 1977).
struct RatioOf {
    std::size_t n = 0;
    double percent = 0;               ///< 0 when the second sum is 0
    std::optional<Interval> interval; ///< none below LeastValues
};

/// percent = 100·ΣL/ΣB, SE² = n/(n−1)·Σ(L − qB)²/(ΣB)², t with n − 1 degrees of freedom. Both lists
/// are of the same length; throws std::invalid_argument where they are not. Where ΣB is 0 there is
/// no interval either.
[[nodiscard]] RatioOf ratioOf(std::span<const double> parts, std::span<const double> wholes);

/// The slope of the least squares line through points, in y's unit per x's.
struct SlopeOf {
    std::size_t n = 0;
    double slope = 0;                 ///< 0 where all x are the same
    std::optional<Interval> interval; ///< by t with n − 2 degrees; none below LeastValues
};

/// Both lists are of the same length; throws std::invalid_argument where they are not. Where all x
/// are the same there is no interval.
[[nodiscard]] SlopeOf slopeOf(std::span<const double> x, std::span<const double> y);

/// How often something happened among a number of chances.
struct RateOf {
    std::size_t count = 0;
    std::size_t of = 0;
    double rate = 0; ///< from 0 to 1
    Interval interval;

    friend bool operator==(const RateOf&, const RateOf&) = default;
};

/// By Wilson's score interval, which keeps its level for small numbers and at 0 (Brown, Cai,
/// DasGupta, 2001). Nothing for no chances at all. Throws std::invalid_argument for a count above
/// the number of chances.
[[nodiscard]] std::optional<RateOf> rateOf(std::size_t count, std::size_t of);

/// The same interval for a count that need not be whole, as where ties count half. Throws
/// std::invalid_argument for no chances and for a count below 0 or above their number.
[[nodiscard]] Interval rateInterval(double count, std::size_t of);

/// The exact interval of a Poisson mean per unit, from a count over `units` of them (Garwood,
/// 1936). Throws std::invalid_argument where `units` is not above 0.
[[nodiscard]] Interval poissonInterval(std::size_t count, double units);

} // namespace kavela
