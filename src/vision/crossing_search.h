#pragma once

#include "vision/piles.h"

#include <stop_token>
#include <vector>

namespace kavela {

/// A boat that was found in a stretch.
struct BandCrossing {
    double slot = 0;       ///< when its bow is on the line, in slots of the stretch
    double bodySlot = 0;   ///< when the middle of its paddler is there
    double speed = 0;      ///< columns a slot
    double confidence = 0; ///< 0 to 1
};

/// The slowest boat that is looked for needs so many seconds for its own length.
inline constexpr double SlowestPassage = 3.3;

/// The boats of a stretch in the order of time. Ends early, with what there is, once `stop` is
/// requested.
[[nodiscard]] std::vector<BandCrossing>
searchCrossings(const BandStretch& stretch, const BandBoat& boat, const std::stop_token& stop = {});

} // namespace kavela
