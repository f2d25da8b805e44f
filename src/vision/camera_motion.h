#pragma once

#include "vision/still_blocks.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace kavela {

/// How a camera moves, seen in what stands still: blocks in a grid of an earlier picture are looked
/// for in the next one, and the similarity on which most of them agree is taken (least median of
/// the squared errors). What more than half of the picture does counts as the camera's motion.
///
/// The errors of each step would add up to hundreds of pixels over a long shot. So pictures are
/// matched against a view that is kept as long as they share half of it, then against another one,
/// and a camera that comes back finds the views of before: errors add up by views and not by
/// pictures, and go away where it has been already.
class CameraMotion {
public:
    /// How the picture moved since the last one whose motion was known, leaving out what is in the
    /// box, which is where it was then; nothing where it cannot be told. The first picture has not
    /// moved. After 13 pictures that told nothing it begins anew with the last of them: what lies
    /// before is lost.
    [[nodiscard]] std::optional<PictureMotion> follow(const TrackPicture& picture,
                                                      const std::optional<TrackBox>& without);

private:
    struct View {
        StillBlocks blocks;
        PictureMotion fromFirst; ///< from the first picture to this one
        int failures = 0;        ///< pictures in a row that should show it, and do not
        bool hasFailed = false;  ///< the last picture is one of them
    };
    static constexpr std::size_t MostViews = 24;
    static constexpr int MostFailures = 5;

    [[nodiscard]] std::optional<PictureMotion>
    motionTo(const SmallPlane& now, const SmallPlane& coarse, const std::optional<TrackBox>& box);
    [[nodiscard]] std::optional<PictureMotion> motionFrom(View& view, const SmallPlane& now,
                                                          const PictureMotion& shift,
                                                          const std::optional<TrackBox>& box);
    void forgetFailing();
    [[nodiscard]] PictureMotion coarseShift(const SmallPlane& coarse) const;

    SmallPlane m_before; ///< the last picture whose motion was known; empty before the first
    SmallPlane m_coarseBefore;
    std::vector<View> m_views; ///< in the order in which they were kept
    PictureMotion m_toNow;     ///< from the first picture to `m_before`
    int m_unknown = 0;         ///< pictures since the last one that told its motion
};

} // namespace kavela
