#pragma once

#include "analysis/race_set.h"

#include <optional>
#include <string>
#include <vector>

/// What an athlete could do with the best of every section in one run. Penalties are left out, and
/// a time of 0 was not taken and is never a best.
namespace kavela {

/// One crew in one category, over all of its runs.
struct AthletePotential {
    std::string name;                   ///< the crew as it is shown
    std::vector<std::size_t> runs;      ///< indices in the race set
    std::optional<std::size_t> bestRun; ///< the full run of the least total; of several the first
    std::optional<double> bestTotal;    ///< seconds
    std::optional<double> potential;    ///< sum of the own best sections, when each has one
    std::optional<double> difference;   ///< seconds that the best total is above the potential
    std::optional<double> percent;      ///< the same in percent of the potential
};

/// The potential of every crew, in the order of their first runs. A paddler with runs in two
/// categories sat in two boats, and is listed for each; a run without a name stands alone.
[[nodiscard]] std::vector<AthletePotential> athletePotentials(const RaceSet& set);

} // namespace kavela
