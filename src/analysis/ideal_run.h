#pragma once

#include "analysis/race_set.h"
#include "common/why.h"

#include <optional>
#include <span>
#include <vector>

/// The run that nobody paddled: the best of every section put together. A time that was not taken
/// is never a best, nor is one that covers an untimed section before; penalties are left out.
namespace kavela {

/// The best of one section.
struct IdealSection {
    double time = 0;                ///< 0 when no run has a time
    std::optional<std::size_t> run; ///< index in the race set; of the first when several are equal
};

struct IdealRun {
    std::vector<IdealSection> sections; ///< of the course, up to the last that some run came to
    std::optional<double> total;        ///< only when every section of the course has a best
    std::optional<std::size_t>
        fastest; ///< the whole run of the least total time, without penalties
};

/// Which number of an ideal run is asked for: its total, the best of a section counted from 1, or
/// the bests up to there.
struct IdealQuestion {
    std::optional<std::size_t> section = std::nullopt;
    bool isAccumulated = false;
};

/// The ideal run of some runs of the set, given by their indices.
[[nodiscard]] IdealRun idealRun(const RaceSet& set, std::span<const std::size_t> runs,
                                const IdealQuestion& question = {}, Why* why = nullptr);

/// The ideal run of the whole set.
[[nodiscard]] IdealRun idealRun(const RaceSet& set, const IdealQuestion& question = {},
                                Why* why = nullptr);

} // namespace kavela
