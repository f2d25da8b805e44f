#include "compose/path_view.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kavela {

namespace {

constexpr double HalfSmoothing = 0.3; ///< seconds to each side
constexpr double TrailSeconds = 8;

/// Only for where the picture is held: nothing of it is shown as a path.
PicturePlace placeBetween(const std::vector<TrackPoint>& points, double seconds) {
    const auto next = std::ranges::lower_bound(points, seconds, {}, &TrackPoint::seconds);
    if (next == points.begin())
        return next->place;
    const TrackPoint& last = *std::prev(next);
    if (next == points.end())
        return last.place;
    const double share = (seconds - last.seconds) / (next->seconds - last.seconds);
    return {std::lerp(last.place.x, next->place.x, share),
            std::lerp(last.place.y, next->place.y, share)};
}

} // namespace

/// Smoothed in steps of a fiftieth, also over gaps, so that the picture never jumps.
PicturePoint PathView::middleAt(double seconds) const {
    constexpr int Steps = 15; // to each side
    if (m_track.points.empty())
        return {0.5, 0.5};
    double weights = 0;
    PicturePlace sum;
    for (int step = -Steps; step <= Steps; ++step) {
        const double weight = 1 - std::abs(step) / (Steps + 1.0);
        const PicturePlace place =
            placeBetween(m_track.points, seconds + HalfSmoothing * step / Steps);
        sum = {sum.x + weight * place.x, sum.y + weight * place.y};
        weights += weight;
    }
    return shareOf({sum.x / weights, sum.y / weights});
}

std::vector<std::vector<PicturePoint>> PathView::trailUpTo(FrameNumber frame) const {
    const auto& points = m_track.points;
    const auto end = std::ranges::upper_bound(points, frame, {}, &TrackPoint::frame);
    std::vector<std::vector<PicturePoint>> pieces;
    FrameNumber before = -1;
    for (auto at = points.begin(); at != end; ++at) {
        if (std::prev(end)->seconds - at->seconds > TrailSeconds)
            continue;
        const auto place = m_track.seenFrom(*at, frame);
        if (!place)
            continue;
        if (pieces.empty() || at->frame != before + 1)
            pieces.emplace_back();
        pieces.back().push_back(shareOf(*place));
        before = at->frame;
    }
    return pieces;
}

} // namespace kavela
