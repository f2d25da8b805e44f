#include "compose/path_view.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kavela {

namespace {

constexpr double HalfSmoothing = 0.3; ///< seconds to each side
constexpr double TrailSeconds = 8;

} // namespace

PicturePoint PathView::middleAt(double seconds) const {
    const auto& points = m_track.points;
    if (points.empty())
        return {0.5, 0.5};
    const auto behind = [&](double from) {
        return std::ranges::lower_bound(points, from, {}, &TrackPoint::seconds);
    };
    double weights = 0;
    PicturePlace sum;
    for (auto at = behind(seconds - HalfSmoothing);
         at != points.end() && at->seconds < seconds + HalfSmoothing; ++at) {
        const double weight = 1 - std::abs(at->seconds - seconds) / HalfSmoothing;
        sum = {sum.x + weight * at->place.x, sum.y + weight * at->place.y};
        weights += weight;
    }
    if (weights > 0)
        return shareOf({sum.x / weights, sum.y / weights});
    const auto next = behind(seconds);
    if (next == points.begin())
        return shareOf(next->place);
    const TrackPoint& last = *std::prev(next);
    if (next == points.end())
        return shareOf(last.place);
    const double share = (seconds - last.seconds) / (next->seconds - last.seconds);
    return shareOf({std::lerp(last.place.x, next->place.x, share),
                    std::lerp(last.place.y, next->place.y, share)});
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
