#pragma once

#include "vision/band.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// Pictures of what moved in one way over the line. For each moment the bands before and after it
/// are averaged along that motion: what moved so stands sharp where it crossed the line, as in the
/// picture of a finish camera that looks from a hundred lines at once, and water averages away.
/// Since the band reaches as far to either side, a speed that is somewhat wrong makes edges soft
/// and does not shift them.
namespace kavela {

/// A way to move over the band.
struct PileMotion {
    double speed = 1; ///< columns a slot of time; negative against the boats
    double slant = 0; ///< rows a column
};

/// The deviations of successive bands at even distances of time, a slot each.
struct BandStretch {
    BandShape shape;
    double secondsPerSlot = 0.02;
    std::vector<const std::int8_t*> slots; ///< shape.samples() each; a frame may fill several
};

/// How finely a pile is made.
struct PileDetail {
    int first = 0; ///< slots, the last one excluded; may reach beyond the stretch, where it is 0
    int last = 0;
    int every = 1; ///< slots from one band that is averaged to the next
};

/// The averages for slots and rows, channel by channel, slot by slot.
struct Pile {
    int first = 0;
    int slots = 0;
    int rows = 0;
    std::vector<float> values;

    [[nodiscard]] const float* at(int channel, int slot) const {
        return values.data() +
               (static_cast<std::size_t>(channel) * static_cast<std::size_t>(slots) +
                static_cast<std::size_t>(slot - first)) *
                   static_cast<std::size_t>(rows);
    }
    [[nodiscard]] float* at(int channel, int slot) {
        return const_cast<float*>(std::as_const(*this).at(channel, slot));
    }
};

/// Averages along a motion. A boat in the average moves evenly for `LongestPile` seconds at most.
inline constexpr double LongestPile = 0.45; ///< to either side of the moment
[[nodiscard]] Pile pileUp(const BandStretch& stretch, const PileMotion& motion,
                          const PileDetail& detail);

/// How far a pile's values usually lie from 0, for each channel and row: what the water does. At
/// least half a grey level.
[[nodiscard]] std::vector<float> usualSpread(const Pile& pile);

/// How much stands out in each slot and row: the squares of the values in units of their usual
/// spread, averaged over the channels, so that water gives about 1. What is darker in the same
/// colour, as a shadow is, counts half in its value. No energy reaches `limit`, so that the little
/// that is very bright does not outweigh the many; 0 is no limit. Slot by slot.
[[nodiscard]] std::vector<float> pileEnergy(const Pile& pile, const std::vector<float>& spread,
                                            float limit);

} // namespace kavela
