#pragma once

#include "compose/layout.h"
#include "vision/track.h"

#include <utility>
#include <vector>

namespace kavela {

/// How the path of something on a film is shown when it is composed: drawn behind it, followed, or
/// both.
class PathView {
public:
    /// How much larger a followed film is shown than it fits, at most: beyond that it is coarse.
    static constexpr double MostZoom = 2;

    /// `size` is that of the upright picture that the places of the track are in. `zoom` is 1 to
    /// MostZoom; above 1 the picture follows the path.
    PathView(FilmTrack track, VideoSize size, double zoom, bool isDrawn)
        : m_track(std::move(track)), m_size(size), m_zoom(zoom), m_isDrawn(isDrawn) {}

    [[nodiscard]] double zoom() const { return m_zoom; }
    [[nodiscard]] bool isDrawn() const { return m_isDrawn; }

    /// What the picture is held at: the path smoothed over 0.6 seconds. Over a gap it goes from the
    /// last place known to the next one, before and behind the path it rests.
    [[nodiscard]] PicturePoint middleAt(double seconds) const;

    /// The way up to a frame as that frame shows it, the camera's motion taken into account: pieces
    /// of it, since a gap is never bridged. At most the last 8 seconds.
    [[nodiscard]] std::vector<std::vector<PicturePoint>> trailUpTo(FrameNumber frame) const;

private:
    [[nodiscard]] PicturePoint shareOf(const PicturePlace& place) const {
        return {place.x / m_size.width, place.y / m_size.height};
    }

    FilmTrack m_track;
    VideoSize m_size;
    double m_zoom;
    bool m_isDrawn;
};

} // namespace kavela
