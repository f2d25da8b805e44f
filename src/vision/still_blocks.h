#pragma once

#include "vision/track.h"
#include "vision/track_picture.h"

#include <optional>
#include <vector>

namespace kavela {

/// The middle of a block in one picture and in another one.
struct MatchedBlock {
    PicturePlace from;
    PicturePlace to;
};

/// A picture with the blocks of a grid that could be found again in another one: those with edges
/// across and down. All places are pixels of that picture.
class StillBlocks {
public:
    /// Longer side of the pictures that it is made for, in pixels.
    static constexpr int PictureSide = 480;

    /// Blocks that touch the box are left out.
    StillBlocks(SmallPlane picture, const std::optional<TrackBox>& without);

    [[nodiscard]] int width() const { return m_picture.width; }
    [[nodiscard]] int height() const { return m_picture.height; }
    /// The blocks that are found again in a picture of the same size, each looked for a few pixels
    /// round where `expected` leads it. Where that touches the box it is not looked for.
    [[nodiscard]] std::vector<MatchedBlock> matchesIn(const SmallPlane& now,
                                                      const PictureMotion& expected,
                                                      const std::optional<TrackBox>& without) const;

private:
    struct Block {
        int left = 0;
        int top = 0;
        int mean = 0;     ///< brightness
        int contrast = 0; ///< what its samples differ from that, in all
    };
    [[nodiscard]] std::optional<MatchedBlock> match(const Block& block, const SmallPlane& now,
                                                    int left, int top) const;

    SmallPlane m_picture;
    std::vector<Block> m_blocks;
};

/// The similarity on which most pairs agree: the least median of the squared errors, then the least
/// squares of those that agree with it. Nothing for fewer than six pairs, and where even the better
/// half is off by more than a pixel.
[[nodiscard]] std::optional<PictureMotion> agreedMotion(const std::vector<MatchedBlock>& pairs);

} // namespace kavela
