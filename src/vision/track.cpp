#include "vision/track.h"

#include <algorithm>
#include <iterator>

namespace kavela {

namespace {

template <class Entry>
const Entry* entryOf(const std::vector<Entry>& entries, FrameNumber frame) {
    const auto found = std::ranges::lower_bound(entries, frame, {}, &Entry::frame);
    return found != entries.end() && found->frame == frame ? &*found : nullptr;
}

} // namespace

const TrackPoint* FilmTrack::pointAt(FrameNumber frame) const {
    return entryOf(points, frame);
}

const TrackCamera* FilmTrack::cameraAt(FrameNumber frame) const {
    return entryOf(cameras, frame);
}

std::optional<PicturePlace> FilmTrack::steadied(const TrackPoint& point) const {
    const TrackCamera* const camera = cameraAt(point.frame);
    return camera ? std::optional(camera->toFirst(point.place)) : std::nullopt;
}

std::optional<PicturePlace> FilmTrack::seenFrom(const TrackPoint& point, FrameNumber frame) const {
    if (point.frame == frame)
        return point.place;
    const TrackCamera* const camera = cameraAt(frame);
    const std::optional<PicturePlace> place = steadied(point);
    return camera && place ? std::optional(camera->toFirst.inverse()(*place)) : std::nullopt;
}

std::vector<FilmTrack::Gap> FilmTrack::gaps() const {
    std::vector<Gap> gaps;
    for (std::size_t i = 1; i < points.size(); ++i)
        if (points[i].frame > points[i - 1].frame + 1)
            gaps.push_back({points[i - 1].frame + 1, points[i].frame - 1});
    return gaps;
}

FilmTrack withKey(FilmTrack track, const TrackKey& key) {
    const auto place = std::ranges::lower_bound(track.keys, key.frame, {}, &TrackKey::frame);
    if (place != track.keys.end() && place->frame == key.frame)
        place->box = key.box;
    else
        track.keys.insert(place, key);
    return track;
}

FilmTrack withoutKey(FilmTrack track, FrameNumber frame) {
    const auto key = std::ranges::find(track.keys, frame, &TrackKey::frame);
    if (key == track.keys.end())
        return track;
    const bool isFirst = key == track.keys.begin();
    const bool isLast = std::next(key) == track.keys.end();
    const FrameNumber before = isFirst ? -1 : std::prev(key)->frame;
    const FrameNumber behind =
        isLast ? std::max(frame, track.points.empty() ? frame : track.points.back().frame) + 1
               : std::next(key)->frame;
    track.keys.erase(key);
    std::erase_if(track.points, [&](const TrackPoint& point) {
        return point.frame > before && point.frame < behind;
    });
    // What the camera did is told against the first frame of all.
    if (isFirst)
        track.cameras.clear();
    return track;
}

} // namespace kavela
