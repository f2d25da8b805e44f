#pragma once

#include "video/video_frame.h"
#include "vision/picture_motion.h"

#include <optional>
#include <vector>

/// The path of something followed through a film. All places are pixels of the upright picture with
/// square pixels, from its left and from its top.
namespace kavela {

/// A box round what is followed.
struct TrackBox {
    double x = 0; ///< its left side
    double y = 0; ///< its upper side
    double width = 0;
    double height = 0;

    [[nodiscard]] PicturePlace middle() const { return {x + width / 2, y + height / 2}; }
    friend bool operator==(const TrackBox&, const TrackBox&) = default;
};

/// A box that somebody drew.
struct TrackKey {
    FrameNumber frame = 0;
    TrackBox box;

    friend bool operator==(const TrackKey&, const TrackKey&) = default;
};

/// Where it was in a frame.
struct TrackPoint {
    FrameNumber frame = 0;
    double seconds = 0; ///< of the film
    PicturePlace place; ///< middle of the box
    double size = 1;    ///< of the box against the one that was drawn before
    double score = 0;   ///< how well it was known again, −1 to 1; 1 for a box that was drawn

    friend bool operator==(const TrackPoint&, const TrackPoint&) = default;
};

/// How the camera moved up to a frame.
struct TrackCamera {
    FrameNumber frame = 0;
    PictureMotion toFirst; ///< from places in this frame to those of the track's first one

    friend bool operator==(const TrackCamera&, const TrackCamera&) = default;
};

/// A path as far as it is known. Frames without a point are gaps: it was lost there, and nothing is
/// put in its place.
struct FilmTrack {
    std::vector<TrackKey> keys;       ///< by frame, each frame once
    std::vector<TrackPoint> points;   ///< by frame, each frame once
    std::vector<TrackCamera> cameras; ///< by frame; ends where the camera's motion was not known

    [[nodiscard]] const TrackPoint* pointAt(FrameNumber frame) const;
    [[nodiscard]] const TrackCamera* cameraAt(FrameNumber frame) const;
    /// Where a point would be seen in the track's first frame: the camera's motion taken out.
    /// Nothing where that is not known.
    [[nodiscard]] std::optional<PicturePlace> steadied(const TrackPoint& point) const;
    /// Where a point is to be drawn in another frame, such as in a trail behind the boat. Nothing
    /// where the camera's motion between the two is not known.
    [[nodiscard]] std::optional<PicturePlace> seenFrom(const TrackPoint& point,
                                                       FrameNumber frame) const;
    /// Stretches of frames between the first and the last point where there is none: first and last
    /// frame of each.
    struct Gap {
        FrameNumber first = 0;
        FrameNumber last = 0;

        friend bool operator==(const Gap&, const Gap&) = default;
    };
    [[nodiscard]] std::vector<Gap> gaps() const;

    friend bool operator==(const FilmTrack&, const FilmTrack&) = default;
};

/// A track with a further key, or another box in the frame of one that is there.
[[nodiscard]] FilmTrack withKey(FilmTrack track, const TrackKey& key);
/// A track without a key, and without what was followed from it alone: the stretches beside it.
[[nodiscard]] FilmTrack withoutKey(FilmTrack track, FrameNumber frame);

} // namespace kavela
