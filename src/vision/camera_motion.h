#pragma once

#include "vision/track_picture.h"

#include <optional>
#include <vector>

namespace kavela {

/// How a camera moves, frame by frame, seen in what stands still: blocks in a grid are looked for
/// in the next picture, and the similarity on which most of them agree is taken (least median of
/// the squared errors). What more than half of the picture does counts as the camera's motion.
class CameraMotion {
public:
    /// How the picture moved since the last one whose motion was known, leaving out what is in the
    /// box; nothing where it cannot be told. The first picture has not moved. After 13 pictures
    /// that told nothing it begins anew with the last of them: what lies before is lost.
    [[nodiscard]] std::optional<PictureMotion> follow(const TrackPicture& picture,
                                                      const std::optional<TrackBox>& without);

private:
    struct Seen {
        PicturePlace from;
        PicturePlace to;
    };
    struct Shift {
        int x = 0;
        int y = 0;
    };

    [[nodiscard]] static bool covers(const std::optional<TrackBox>& box, int x, int y, int factor);
    [[nodiscard]] Shift coarseShift(const SmallPlane& coarse) const;
    [[nodiscard]] std::vector<Seen> matchBlocks(const SmallPlane& now, const Shift& shift,
                                                const std::optional<TrackBox>& without) const;
    [[nodiscard]] std::optional<Seen> matchBlock(const SmallPlane& now, int left, int top,
                                                 const Shift& shift) const;

    SmallPlane m_before;
    SmallPlane m_coarseBefore;
    int m_factor = 1;
    int m_unknown = 0; ///< pictures since the last one that told its motion
    bool m_hasBefore = false;
};

} // namespace kavela
