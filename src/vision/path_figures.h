#pragma once

#include "vision/track.h"
#include "vision/water_plane.h"

#include <optional>
#include <vector>

namespace kavela {

/// Known points on the water, clicked in one frame of a film.
struct KnownPlane {
    FrameNumber frame = 0;
    std::vector<PlanePoint> points; ///< two or four

    friend bool operator==(const KnownPlane&, const KnownPlane&) = default;
};

/// What is known of a path in a frame; only the frame and its second in a gap.
struct PathFigure {
    FrameNumber frame = 0;
    std::optional<double> seconds = {};
    std::optional<PicturePlace> place = {};
    std::optional<PicturePlace> steadied = {}; ///< as seen in the first frame of the path
    std::optional<WaterPlace> water = {};      ///< metres
    std::optional<double> speed = {};          ///< metres a second
    /// Standard deviation of the speed when each known point was clicked 2 pixels off.
    std::optional<double> speedError = {};
    std::optional<double> score = {};
};

/// The figures of a path, frame by frame from its first point to its last; frames of gaps have
/// nothing but their number. A speed is the slope of the line through the positions of 0.2 seconds;
/// there is none across a gap. Throws TrackError as WaterPlane does, and where the camera's motion
/// to the frame of the known points is not known.
[[nodiscard]] std::vector<PathFigure> pathFigures(const FilmTrack& track,
                                                  const std::optional<KnownPlane>& plane);

/// The known points as the first frame of a path shows them. Throws TrackError where it is not
/// known how the camera moved between the two.
[[nodiscard]] std::vector<PlanePoint> planeInFirstFrame(const FilmTrack& track,
                                                        const KnownPlane& plane);

} // namespace kavela
