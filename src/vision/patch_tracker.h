#pragma once

#include "vision/patch_template.h"
#include "vision/track.h"

#include <optional>

namespace kavela {

/// Follows what a box holds from picture to picture: it is looked for round the place where it
/// should be by its speed and the camera's, as it looked first and as it looked of late. A place
/// where it is not known again is none; it is looked for in a wider and wider circle then, and has
/// to be known better to be believed.
class PatchTracker {
public:
    /// Correlation under which it is lost.
    static constexpr double LeastScore = 0.35;
    /// Sides of a box, in pixels of the picture.
    static constexpr double LeastSide = 8;

    /// Throws TrackError for a box outside the picture, one that is too small, and one on nothing
    /// that could be known again.
    PatchTracker(const TrackPicture& picture, const TrackBox& box);

    struct Found {
        PicturePlace place; ///< middle of the box
        double size = 1;    ///< against the box that was drawn
        double score = 0;
    };
    /// Where it is in the next picture. `camera` is how the picture moved since the last one.
    [[nodiscard]] std::optional<Found> follow(const TrackPicture& picture,
                                              const PictureMotion& camera);
    /// Pictures since it was seen last; 0 where it was in the last one.
    [[nodiscard]] int missed() const { return m_missed; }
    /// The box where it should be now.
    [[nodiscard]] TrackBox expectedBox() const;

private:
    struct Match {
        double x = 0; ///< samples from the middle of the window
        double y = 0;
        double score = 0;
        double first = 0; ///< correlation with the first look
    };
    [[nodiscard]] Match bestMatch(const PatchWindow& window) const;
    [[nodiscard]] double scoreAt(const PatchWindow& window, int x, int y) const;
    [[nodiscard]] double otherSize(const TrackPicture& picture, const PicturePlace& place,
                                   double score) const;
    void take(const TrackPicture& picture, const Found& found, const PicturePlace& expected);

    TrackBox m_box;  ///< as it was drawn
    int m_width = 0; ///< samples
    int m_height = 0;
    double m_step = 1; ///< pixels between two samples at size 1
    double m_size = 1;
    PicturePlace m_place;
    PicturePlace m_speed; ///< pixels in a picture, beside the camera's
    int m_missed = 0;
    std::optional<PatchTemplate> m_first;
    std::optional<PatchTemplate> m_renewed;
};

} // namespace kavela
