#pragma once

#include "common/reference_date.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

namespace kavela {

struct splittakerdata031;

/// What a race is known by where another one like it is looked for.
struct RaceTraits {
    std::set<std::string> categories; ///< of its runs, by their keys; none without runs
    std::string place;                ///< folded
    std::int64_t sections = 0;        ///< splits of a run
    ReferenceDate date;
};

[[nodiscard]] RaceTraits traitsOf(const splittakerdata031& race);

/// How like another race is, the greater the more: first those with runs, then by categories in
/// common, then those of the same place, of as many sections, and the nearest in time.
struct RaceLikeness {
    bool hasRuns = false;
    std::size_t categories = 0; ///< in common
    bool isPlace = false;
    bool isCourse = false; ///< as far as the number of sections tells
    double nearness = 0;   ///< seconds between the two, below 0

    friend auto operator<=>(const RaceLikeness&, const RaceLikeness&) = default;
};

[[nodiscard]] RaceLikeness likeness(const RaceTraits& one, const RaceTraits& other);

} // namespace kavela
