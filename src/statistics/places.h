#pragma once

#include <cstddef>
#include <span>
#include <vector>

/// Which places boats may expect of one another, computed and not thrown with dice: each boat's
/// result is normal, boats are independent, and those with a missed gate come in behind all that
/// have none, by their times among themselves.
namespace kavela {

/// A boat at the start.
struct BoatOdds {
    double mean = 0;   ///< of its result; less is better
    double spread = 0; ///< standard deviation, above 0, in the same unit
    double fail = 0;   ///< chance of a missed gate, from 0 to 1
};

/// What a boat may expect.
struct PlaceChances {
    std::vector<double> places; ///< chance of the first, second … place; they add up to 1
    double expected = 0;        ///< the mean place
    double medal = 0;           ///< chance of one of the first three
};

/// By boat, in their order. The others in front of a boat are counted by a Poisson-binomial
/// distribution at the midpoints of 2,000 cells, from six of the largest spreads before the best
/// mean to six behind the worst; a spread narrower than a cell counts as one. Throws
/// std::invalid_argument for odds out of their ranges.
[[nodiscard]] std::vector<PlaceChances> placesOf(std::span<const BoatOdds> boats);

/// The chance of a missed gate: (missed + 20q)/(runs + 20), with everyone's rate
/// q = (all missed + ½)/(all runs + 1), so that few runs do not make a boat safe or hopeless.
[[nodiscard]] double chanceOfMissedGate(std::size_t missed, std::size_t runs, std::size_t allMissed,
                                        std::size_t allRuns);

} // namespace kavela
