#pragma once

#include "video/index.h"
#include "video/picture.h"
#include "vision/slit_line.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

/// What stood on a line across the picture of a fixed camera, column by column over time, as a
/// finish camera shows it.
namespace kavela {

/// Columns that stand in one tile, but for the last one of a picture.
inline constexpr FrameNumber SlitTileColumns = 128;

/// A stretch of a slit picture. It never changes once it was handed out.
struct SlitTile {
    /// How many frames stand in a column of each level.
    static constexpr std::array<int, 3> FramesPerColumn{1, 8, 64};

    FrameNumber first = 0; ///< frame of its first column
    int columns = 0;       ///< frames in it, 1 to SlitTileColumns
    /// The same over and over with fewer columns, each the mean of those it stands for.
    std::array<Picture, FramesPerColumn.size()> levels;
};

/// A slit picture as far as it was read. Copies share the tiles.
struct SlitPicture {
    FrameNumber first = 0;   ///< frame of the first column
    FrameNumber columns = 0; ///< one for each frame from there on
    int height = 0;          ///< pixels along the line; 0 before the first tile
    std::vector<std::shared_ptr<const SlitTile>> tiles;

    /// Adds the next tile.
    void add(std::shared_ptr<const SlitTile> tile);
    /// The tile of a column counted from 0; null for one that was not read.
    [[nodiscard]] const SlitTile* tileOf(FrameNumber column) const;
};

/// What is to be read of a film.
struct SlitOrder {
    std::vector<SlitLine> lines;
    FrameNumber first = 0;
    FrameNumber last = -1; ///< below 0: up to the end of the film
    /// What all pictures together may take, in bytes; a film of hours gets lower pictures.
    std::size_t mostBytes = std::size_t{256} << 20;
    int mostHeight = 1200; ///< of one picture, in pixels
};

/// The height that each line of an order gets in a film, in pixels.
[[nodiscard]] std::vector<int> slitHeights(const VideoIndex& index, const SlitOrder& order);

/// How reading ended.
struct SlitReading {
    FrameNumber columns = 0;          ///< that were read, of each line
    std::vector<FrameNumber> missing; ///< frames that cannot be decoded: their columns are black
    bool isStopped = false;
    bool isCutOff = false; ///< the file ends before frames that it lists
};

/// Gets the tiles of each line in their order, as soon as they are full; on the thread that reads.
using TakeSlitTile =
    std::function<void(std::size_t line, const std::shared_ptr<const SlitTile>& tile)>;

/// Reads the slit pictures of several lines, decoding the film once. The first end of a line is the
/// upper edge of its picture. Throws VideoError for a line
/// that checkSlitLine() refuses, and for a film that cannot be opened. Ends within a packet of the
/// film once `stop` is requested; what is then in the last tile is handed out too.
SlitReading readSlits(std::shared_ptr<const VideoIndex> index, const SlitOrder& order,
                      const std::stop_token& stop, const TakeSlitTile& take);

/// Where a moment stands in a slit picture: in columns, whose middles are the frames' stamps. Past
/// either end it goes on by the interval of the frames there.
[[nodiscard]] double slitColumnAt(const VideoIndex& index, FrameNumber first, double seconds);
/// The moment at a place in columns.
[[nodiscard]] double slitSecondsAt(const VideoIndex& index, FrameNumber first, double column);
/// The frame whose column a place lies in, kept within the film.
[[nodiscard]] FrameNumber slitFrameAt(const VideoIndex& index, FrameNumber first, double column);

} // namespace kavela
