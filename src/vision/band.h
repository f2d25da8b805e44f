#pragma once

#include "vision/half_planes.h"
#include "vision/slit_line.h"

#include <cstdint>
#include <span>
#include <vector>

/// The strip of picture on both sides of a line, straightened: columns are parallel to the line and
/// counted along the way of the boats, rows go along the line from its first end. Samples stand
/// channel by channel (brightness, blue, red), column by column, row by row.
namespace kavela {

inline constexpr int BandReach = 56; ///< columns on either side of the line's own
inline constexpr int BandColumns = 2 * BandReach + 1;
inline constexpr int BandChannels = 3;

/// Where a band lies in half pixels of the stored picture.
struct BandShape {
    SlitPoint origin; ///< the line's first end
    SlitPoint along;  ///< the step from row to row
    SlitPoint across; ///< the step from column to column
    int rows = 0;

    [[nodiscard]] std::size_t samples() const {
        return static_cast<std::size_t>(BandChannels) * BandColumns *
               static_cast<std::size_t>(rows);
    }
    /// The place of a column's first row; columns count from −BandReach to BandReach.
    [[nodiscard]] std::size_t column(int channel, int number) const {
        return (static_cast<std::size_t>(channel) * BandColumns +
                static_cast<std::size_t>(number + BandReach)) *
               static_cast<std::size_t>(rows);
    }
};

/// How large a boat is in a band.
struct BandBoat {
    double length = 0; ///< columns
    double height = 0; ///< rows, with its paddler
};

/// A band made to measure for boats of a size.
struct FittedBand {
    BandShape shape;
    BandBoat boat;
};

/// The band for a line and for boats `wide` × `high`, all in half pixels: coarser than they are
/// where a boat or the line is so long that finer would show nothing more.
[[nodiscard]] FittedBand fittedBand(const SlitLine& halfLine, double wide, double high);

/// The shape for a line in half pixels. `step` is the distance of rows and of columns, at least 1.
[[nodiscard]] BandShape bandShape(const SlitLine& halfLine, double step);

/// Cuts the band out of a picture that is shifted against the first one by so many half pixels.
/// What lies outside the picture takes the nearest sample.
[[nodiscard]] std::vector<std::uint8_t> cutBand(const BandShape& shape, const HalfPlanes& picture,
                                                SlitPoint shift);

/// What a band looks like when nothing passes: the median of each sample over the bands, all of one
/// shape. Throws std::invalid_argument without bands.
[[nodiscard]] std::vector<std::uint8_t>
medianBand(const BandShape& shape, std::span<const std::vector<std::uint8_t>* const> bands);

/// How a band differs from the resting one, after its light was brought to the resting one's.
[[nodiscard]] std::vector<std::int8_t> bandDeviation(const BandShape& shape,
                                                     const std::vector<std::uint8_t>& band,
                                                     const std::vector<std::uint8_t>& resting);

} // namespace kavela
