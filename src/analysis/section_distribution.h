#pragma once

#include "analysis/race_set.h"

#include <vector>

/// How the times of the runs spread in each section. A time of 0 was not taken and never counts,
/// nor does one that covers an untimed section before its own.
namespace kavela {

/// The time of one run in a section.
struct SectionValue {
    std::size_t run = 0; ///< index in the race set
    double time = 0;     ///< seconds
};

/// The times of one section. All figures are 0 when no run has a time.
struct SectionDistribution {
    double minimum = 0;
    double lowerQuartile = 0;
    double median = 0;
    double upperQuartile = 0;
    double maximum = 0;
    /// The least and the largest time within one and a half quartile distances of the quartiles:
    /// the whiskers of a box (Tukey, 1977).
    double lowerWhisker = 0;
    double upperWhisker = 0;
    std::vector<SectionValue> values; ///< ascending; equal ones in the order of the race set
};

/// The distribution of each section of the course, up to the last that some run came to.
[[nodiscard]] std::vector<SectionDistribution> sectionDistributions(const RaceSet& set,
                                                                    bool penaltiesIncluded);

} // namespace kavela
