#pragma once

#include "vision/half_planes.h"
#include "vision/slit_line.h"

#include <span>
#include <vector>

namespace kavela {

/// How far a picture is shifted against the one at rest, in half pixels.
struct CameraShift {
    double x = 0;
    double y = 0;
    bool isKnown = false; ///< false where too little of the picture was found again
};

/// Finds the shift of a camera that stands on something which trembles, from blocks of the picture
/// that stand still: the bank and what stands on it, never the water. Used from one thread.
class ShakeMeter {
public:
    /// Learns from pictures of one size, some fifty from all over a stretch of film. Fewer than
    /// three make a meter that knows nothing.
    explicit ShakeMeter(std::span<const HalfPlanes> pictures);

    /// The shift of a picture of the same size; looks near that of the last one. Where nothing is
    /// found again the last one is told, as not known.
    [[nodiscard]] CameraShift shiftOf(const HalfPlanes& picture);

    /// Blocks that stand still; without three the shift is never known.
    [[nodiscard]] int blocks() const { return static_cast<int>(m_blocks.size()); }
    /// Whether the pictures to learn from lay so far apart that no tripod did that, or whether
    /// much of the picture has marked corners and none stays where it is.
    [[nodiscard]] bool isHandHeld() const { return m_isHandHeld; }

private:
    struct Block {
        int x = 0;
        int y = 0;
        std::vector<float> pattern; ///< mean 0, length 1
    };
    struct Match {
        CameraShift shift;
        double likeness = 0;
    };

    void chooseBlocks(std::span<const HalfPlanes> pictures, const HalfPlanes& median);
    void judgeHold(std::span<const HalfPlanes> pictures);
    [[nodiscard]] static Match matchOf(const Block& block, const HalfPlanes& picture, int nearX,
                                       int nearY, int reach);
    [[nodiscard]] CameraShift shiftNear(const HalfPlanes& picture, const CameraShift& start,
                                        int reach) const;

    std::vector<Block> m_blocks;
    CameraShift m_last;
    bool m_isHandHeld = false;
};

} // namespace kavela
