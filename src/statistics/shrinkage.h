#pragma once

#include "common/interval.h"

#include <cstddef>
#include <span>
#include <vector>

/// Rates of many small samples, ranked fairly: small counts fill both ends of any list, so each
/// rate is drawn towards the common one by as much as the spread among them allows.
namespace kavela {

/// x of something in n chances.
struct CountOf {
    std::size_t count = 0;
    std::size_t of = 0;
};

/// What the rates have in common: a beta distribution with mean m and strength M, as if M chances
/// had been seen before (Kleinman, 1973).
struct CommonRate {
    double mean = 0;
    double strength = 0;
};

/// One rate drawn towards the common one: the distribution Beta(mM + x, (1 − m)M + n − x).
struct ShrunkRate {
    double rate = 0;
    Interval interval;
    double above = 0; ///< the chance that the true rate is above the common one
};

/// m = (Σx + ½)/(N + 1), N = Σn, v = m(1 − m), S = Σn(x/n − m)², γ = (S − v(k − 1)) / (v(N − Σn²/N
/// − (k − 1))) kept in [1/2001, ½], M = (1 − γ)/γ; 20 below three rows and where no row has a
/// second chance, which tells nothing of a spread. Rows without a chance count for nothing. Throws
/// std::invalid_argument for a count above the number of chances.
[[nodiscard]] CommonRate commonRate(std::span<const CountOf> rows);

/// A row without a chance is the common rate itself. Throws std::invalid_argument for a count above
/// the number of chances, and for a common rate that is not one.
[[nodiscard]] ShrunkRate shrunkRate(const CountOf& row, const CommonRate& common);

} // namespace kavela
