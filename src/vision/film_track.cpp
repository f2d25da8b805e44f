#include "vision/film_track.h"

#include "common/text.h"
#include "vision/camera_motion.h"
#include "vision/patch_tracker.h"
#include "vision/track_error.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace kavela {

namespace {

constexpr double PatienceSeconds = 0.4;
constexpr int MostUnknownCameras = 12; ///< frames after which what it did meanwhile is not known
constexpr double OnePlace = 0.3;       ///< of the box: both sides found the same

std::shared_ptr<const AVFrame> planesAt(FilmPlanes& film, FrameNumber frame,
                                        const std::stop_token& stop) {
    return film.at(frame, [&stop] { return stop.stop_requested(); });
}

PatchTracker trackerAt(FilmPlanes& film, const TrackKey& key, const std::stop_token& stop) {
    const auto planes = planesAt(film, key.frame, stop);
    if (!planes)
        throw TrackError(say("The frame of the box cannot be shown."));
    return {trackPictureOf(*planes), key.box};
}

TrackPoint keyPoint(const FilmPlanes& film, const TrackKey& key) {
    return {key.frame, film.index().secondsOf(key.frame), key.box.middle(), 1, 1};
}

/// One stretch, forwards with the camera and backwards with what is known of it by then.
class Following {
public:
    Following(FilmPlanes& film, const StretchOrder& order, const std::stop_token& stop,
              const TrackListener& onProgress)
        : m_film(film), m_order(order), m_stop(stop), m_onProgress(onProgress) {
        m_end = order.to ? order.to->frame : order.last;
    }

    FollowedStretch run() {
        FollowedStretch stretch;
        stretch.first = m_order.from.frame;
        stretch.last = stretch.first;
        stretch.isLast = !m_order.to;
        forwards(stretch);
        if (m_order.to && !m_stop.stop_requested()) {
            const double longer = std::max(m_order.from.box.width, m_order.from.box.height);
            std::erase_if(stretch.points,
                          [this](const TrackPoint& point) { return point.frame >= m_end; });
            stretch.points = joinedPoints(stretch.points, backwards(stretch), longer);
            stretch.lostAt.reset();
        }
        return stretch;
    }

private:
    void forwards(FollowedStretch& stretch) {
        PatchTracker tracker = trackerAt(m_film, m_order.from, m_stop);
        CameraMotion camera;
        const auto first = planesAt(m_film, m_order.from.frame, m_stop);
        if (first)
            static_cast<void>(camera.follow(trackPictureOf(*first), m_order.from.box));
        stretch.cameras.push_back({m_order.from.frame, {}});
        stretch.points.push_back(keyPoint(m_film, m_order.from));
        for (FrameNumber frame = m_order.from.frame + 1; frame <= m_end; ++frame) {
            const auto planes = planesAt(m_film, frame, m_stop);
            if (m_stop.stop_requested() || !isWorthGoingOn(stretch, frame))
                break;
            stretch.last = frame;
            if (planes)
                look(trackPictureOf(*planes), frame, tracker, camera, stretch);
            tell(stretch, frame);
        }
        noteLoss(stretch);
    }

    void look(const TrackPicture& picture, FrameNumber frame, PatchTracker& tracker,
              CameraMotion& camera, FollowedStretch& stretch) const {
        const auto motion = camera.follow(picture, tracker.expectedBox());
        const TrackCamera known = stretch.cameras.back();
        // What was found since the camera was known last has gone with it already.
        const bool hasGoneAlong = stretch.points.back().frame > known.frame;
        if (motion && frame - known.frame <= MostUnknownCameras)
            stretch.cameras.push_back({frame, motion->inverse().then(known.toFirst)});
        if (!isWorthLooking(stretch, frame))
            return;
        const PictureMotion moved = motion && !hasGoneAlong ? *motion : PictureMotion();
        if (const auto found = tracker.follow(picture, moved))
            stretch.points.push_back(
                {frame, m_film.index().secondsOf(frame), found->place, found->size, found->score});
    }

    [[nodiscard]] bool isWorthLooking(const FollowedStretch& stretch, FrameNumber frame) const {
        return m_film.index().secondsOf(frame) - stretch.points.back().seconds <= PatienceSeconds;
    }

    /// Towards a next box the camera is followed on.
    [[nodiscard]] bool isWorthGoingOn(const FollowedStretch& stretch, FrameNumber frame) const {
        return m_order.to || isWorthLooking(stretch, frame);
    }

    static void noteLoss(FollowedStretch& stretch) {
        if (stretch.points.back().frame < stretch.last)
            stretch.lostAt = stretch.points.back().frame + 1;
    }

    void tell(const FollowedStretch& stretch, FrameNumber frame) const {
        if (!m_onProgress)
            return;
        const double all = static_cast<double>(m_end - m_order.from.frame) * (m_order.to ? 2 : 1);
        TrackProgress progress{frame, static_cast<double>(frame - m_order.from.frame) / all};
        if (stretch.points.back().frame == frame)
            progress.point = stretch.points.back();
        m_onProgress(progress);
    }

    [[nodiscard]] std::vector<TrackPoint> backwards(const FollowedStretch& stretch) const {
        PatchTracker tracker = trackerAt(m_film, *m_order.to, m_stop);
        std::vector<TrackPoint> points{keyPoint(m_film, *m_order.to)};
        PictureMotion later = cameraAt(stretch, m_end);
        for (FrameNumber frame = m_end - 1; frame > m_order.from.frame; --frame) {
            const auto planes = planesAt(m_film, frame, m_stop);
            const double seconds = m_film.index().secondsOf(frame);
            if (m_stop.stop_requested() || points.back().seconds - seconds > PatienceSeconds)
                break;
            if (!planes)
                continue;
            const PictureMotion now = cameraAt(stretch, frame);
            if (const auto found =
                    tracker.follow(trackPictureOf(*planes), later.then(now.inverse())))
                points.push_back({frame, seconds, found->place, found->size, found->score});
            later = now;
            if (m_onProgress)
                m_onProgress(
                    {frame, 1 - static_cast<double>(frame - m_order.from.frame) /
                                    (2.0 * static_cast<double>(m_end - m_order.from.frame))});
        }
        std::ranges::reverse(points);
        return points;
    }

    /// The last one known where it is not known of the frame itself.
    static PictureMotion cameraAt(const FollowedStretch& stretch, FrameNumber frame) {
        const auto behind =
            std::ranges::upper_bound(stretch.cameras, frame, {}, &TrackCamera::frame);
        return behind == stretch.cameras.begin() ? PictureMotion() : std::prev(behind)->toFirst;
    }

    FilmPlanes& m_film;
    const StretchOrder& m_order;
    std::stop_token m_stop;
    const TrackListener& m_onProgress;
    FrameNumber m_end = 0;
};

/// Both found it: the mean of the two.
TrackPoint meanOfBoth(const TrackPoint& a, const TrackPoint& b) {
    TrackPoint mean = a;
    mean.place = {(a.place.x + b.place.x) / 2, (a.place.y + b.place.y) / 2};
    mean.score = std::min(a.score, b.score);
    return mean;
}

} // namespace

FollowedStretch followStretch(FilmPlanes& film, const StretchOrder& order,
                              const std::stop_token& stop, const TrackListener& onProgress) {
    return Following(film, order, stop, onProgress).run();
}

std::vector<TrackPoint> joinedPoints(const std::vector<TrackPoint>& forwards,
                                     const std::vector<TrackPoint>& backwards, double longerSide) {
    struct Both {
        const TrackPoint* forwards = nullptr;
        const TrackPoint* backwards = nullptr;
        [[nodiscard]] bool areOne(double reach) const {
            return forwards && backwards &&
                   std::hypot(forwards->place.x - backwards->place.x,
                              forwards->place.y - backwards->place.y) <= reach;
        }
    };
    std::vector<Both> frames;
    std::size_t back = 0;
    for (const TrackPoint& point : forwards) {
        for (; back < backwards.size() && backwards[back].frame < point.frame; ++back)
            frames.push_back({nullptr, &backwards[back]});
        const bool isBoth = back < backwards.size() && backwards[back].frame == point.frame;
        frames.push_back({&point, isBoth ? &backwards[back++] : nullptr});
    }
    for (; back < backwards.size(); ++back)
        frames.push_back({nullptr, &backwards[back]});
    const double reach = OnePlace * longerSide;
    const auto isOne = [reach](const Both& both) { return both.areOne(reach); };
    const auto firstOne = std::ranges::find_if(frames, isOne);
    const auto lastOne = std::find_if(frames.rbegin(), frames.rend(), isOne).base();
    std::vector<TrackPoint> joined;
    for (auto at = frames.begin(); at != frames.end(); ++at) {
        if (at->areOne(reach))
            joined.push_back(meanOfBoth(*at->forwards, *at->backwards));
        else if (at->forwards && (!at->backwards || at < firstOne) && firstOne != frames.end())
            joined.push_back(*at->forwards);
        else if (at->backwards && (!at->forwards || at >= lastOne) && firstOne != frames.end())
            joined.push_back(*at->backwards);
        else if (firstOne == frames.end() && !(at->forwards && at->backwards))
            joined.push_back(at->forwards ? *at->forwards : *at->backwards);
    }
    return joined;
}

FilmTrack withStretch(FilmTrack track, const FollowedStretch& stretch) {
    const auto isWithin = [&](const auto& entry) {
        return entry.frame >= stretch.first && (stretch.isLast || entry.frame <= stretch.last);
    };
    if (track.cameras.empty())
        track.cameras.push_back({stretch.first, {}});
    const TrackCamera* const known = track.cameraAt(stretch.first);
    const std::optional<PictureMotion> start = known ? std::optional(known->toFirst) : std::nullopt;
    std::erase_if(track.points, isWithin);
    std::erase_if(track.cameras, isWithin);
    track.points.insert(track.points.end(), stretch.points.begin(), stretch.points.end());
    if (start)
        for (const TrackCamera& camera : stretch.cameras)
            track.cameras.push_back({camera.frame, camera.toFirst.then(*start)});
    std::ranges::sort(track.points, {}, &TrackPoint::frame);
    std::ranges::sort(track.cameras, {}, &TrackCamera::frame);
    return track;
}

StretchOrder stretchOf(const FilmTrack& track, std::size_t key, FrameNumber last) {
    StretchOrder order{track.keys.at(key), {}, std::max(last, track.keys[key].frame)};
    if (key + 1 < track.keys.size())
        order.to = track.keys[key + 1];
    return order;
}

} // namespace kavela
