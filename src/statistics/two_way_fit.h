#pragma once

#include "common/interval.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// How much athletes vary from race to race: values that are the sum of an athlete's part, a race
/// phase's part and chance, fitted by least squares to a table of which any cells may be missing or
/// filled more than once. It is the fixed-effects form of the mixed model that was used for elite
/// canoeists (Bonetti, Hopkins, 2010). With 100·ln T as the values all effects and spreads are in
/// percent, to first order.
namespace kavela {

/// One value of the table. Athletes and phases are numbered from 0.
struct TwoWayValue {
    std::size_t athlete = 0;
    std::size_t phase = 0;
    double value = 0;
};

/// An athlete's or a phase's part of the values.
struct TwoWayEffect {
    double effect = 0;
    std::size_t runs = 0; ///< values it comes from; without any it is no part of the fit
    /// Athletes of different connected parts never met, not even through others: their effects
    /// cannot be compared. Numbered from 0.
    std::size_t part = 0;
};

/// How an athlete varied.
struct AthleteSpread {
    double own = 0;    ///< √(Σe² / (runs·df/all runs))
    double shrunk = 0; ///< the same with the common spread added with ten degrees of freedom
};

struct TwoWayFit {
    std::vector<TwoWayEffect> athletes; ///< 0 on average over the athletes of each connected part
    std::vector<TwoWayEffect> phases;   ///< the value of an average athlete of the part
    std::vector<double> residuals;      ///< by value, what is left to chance
    std::size_t parts = 0;              ///< connected ones
    std::size_t degrees = 0;            ///< df = runs − athletes − phases + parts
    std::optional<double> spread;       ///< √(Σe²/df), common to all; none without a degree
    std::optional<Interval> interval;   ///< of the spread, by χ²; none below LeastValues runs
    /// By athlete; zeros for one without a value. Empty where there is no common spread.
    std::vector<AthleteSpread> spreads;
};

/// Fits the table. Numbers without a value may lie between those with one. Throws
/// std::invalid_argument for a value that is not finite.
[[nodiscard]] TwoWayFit twoWayFit(std::span<const TwoWayValue> values);

/// A spread of 100·ln T as a coefficient of variation in percent: 100(e^{s/100} − 1).
[[nodiscard]] double variationOf(double spread);

} // namespace kavela
