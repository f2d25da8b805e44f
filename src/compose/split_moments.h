#pragma once

#include "compose/composition.h"

#include <cstddef>
#include <vector>

/// Where the splits of a composition lie in common time, for who chooses a part of it.
namespace kavela {

/// When a split is first passed.
struct SplitMoment {
    std::size_t split = 0; ///< 0 is the start
    double common = 0;     ///< seconds of common time

    friend bool operator==(const SplitMoment&, const SplitMoment&) = default;
};

/// The splits that a film has a mark for, in their order, each when the first film passes it.
[[nodiscard]] std::vector<SplitMoment> splitMomentsOf(const Composition& composition,
                                                      const TimeMap& map);

/// What is left and right of the marks to choose from, in seconds.
inline constexpr double ChoiceMarginSeconds = 5;

/// The stretch of common time that a part can be chosen from: from a little before the first mark
/// to a little behind the last one; the whole films where none has a mark behind its start.
/// `lengths` are the seconds of the last frames, 0 for a film that is not there. It holds `shown`.
[[nodiscard]] CommonRange choiceRangeOf(const Composition& composition, const TimeMap& map,
                                        const std::vector<double>& lengths,
                                        const CommonRange& shown);

/// The part of a composition from one moment of common time to another: between splits where both
/// moments are those of splits, else free.
[[nodiscard]] RangeChoice rangeBetween(double from, double to,
                                       const std::vector<SplitMoment>& splits);

} // namespace kavela
