#pragma once

#include "vision/crossing_search.h"

#include <optional>

namespace kavela {

/// Where a boat seems to begin, before it is looked at closely.
struct BoatSeed {
    int slot = 0;
    int row = 0;  ///< first row of the hull
    int rows = 0; ///< of the hull
    PileMotion motion;
    const std::vector<float>* spread = nullptr; ///< what water does in piles of this motion
};

/// A boat seen closely.
struct FoundBow {
    double slot = 0;        ///< when the foremost point is on the line
    double bodySlot = 0;    ///< when the middle of the paddler is there
    double speed = 0;       ///< columns a slot
    double lengthShare = 0; ///< of the boat's length that hangs together behind it
    double heightShare = 0; ///< of the boat's height that stands out in its middle
    /// How much sharper its edges are along its way than along the best one against it; below 1 for
    /// a boat that goes up.
    double sharpness = 0;
};

/// Settles speed and slant over the whole boat, also where the seed is along a way much too slow,
/// and finds its foremost point: the first place of the connected piece that stands out. Nothing
/// where no piece does.
[[nodiscard]] std::optional<FoundBow> findBow(const BandStretch& stretch, const BandBoat& boat,
                                              const BoatSeed& seed);

} // namespace kavela
