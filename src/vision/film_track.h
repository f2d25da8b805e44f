#pragma once

#include "vision/film_planes.h"
#include "vision/track.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

/// Following what somebody drew a box round through a film.
namespace kavela {

/// From one box to the next one, or without a next one as far as it is seen.
struct StretchOrder {
    TrackKey from;
    std::optional<TrackKey> to; ///< behind `from`
    FrameNumber last = 0;       ///< where it ends without a next box, `from.frame` at least
};

/// What was followed. Frames without a point are gaps.
struct FollowedStretch {
    FrameNumber first = 0; ///< frame of the box that it begins with
    FrameNumber last = 0;  ///< the last frame that was looked at
    bool isLast = true;    ///< no next box ends it: nothing of before stays behind it
    std::vector<TrackPoint> points;
    std::vector<TrackCamera> cameras;  ///< against the first frame of the stretch
    std::optional<FrameNumber> lostAt; ///< first frame of what was not found again up to the end
};

/// How far it has come: frames looked at, and the point of the last one where there is one.
struct TrackProgress {
    FrameNumber frame = 0;
    double fraction = 0;
    std::optional<TrackPoint> point = {};
};
using TrackListener = std::function<void(const TrackProgress&)>;

/// Without a next box it ends where it was not seen for 0.4 seconds. Towards a next box it runs
/// from both sides: where both find it at one place that is it, and where they contradict each
/// other it is a gap. Ends early, with what was found forwards, once `stop` is requested. Throws
/// TrackError for a box that cannot be followed, and VideoError as FilmPlanes does.
[[nodiscard]] FollowedStretch followStretch(FilmPlanes& film, const StretchOrder& order,
                                            const std::stop_token& stop = {},
                                            const TrackListener& onProgress = {});

/// The points of a stretch that was run from both sides, each sorted by frame.
[[nodiscard]] std::vector<TrackPoint> joinedPoints(const std::vector<TrackPoint>& forwards,
                                                   const std::vector<TrackPoint>& backwards,
                                                   double longerSide);

/// A track with a stretch in place of what it had there.
[[nodiscard]] FilmTrack withStretch(FilmTrack track, const FollowedStretch& stretch);

/// The stretch of a track that begins at its key of a number: up to the next key, or to `last`.
[[nodiscard]] StretchOrder stretchOf(const FilmTrack& track, std::size_t key, FrameNumber last);

} // namespace kavela
