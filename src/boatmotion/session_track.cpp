#include "boatmotion/session_track.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela {

namespace {

constexpr double LongestTrackHole = 10;   // s
constexpr double EarthRadius = 6371008.8; // m
constexpr double FastestBoat = 30;        // m/s: more is the receiver's error
constexpr double DegreesToRadians = std::numbers::pi / 180;

bool isPlace(const gpsrawdata& fix) {
    return std::isfinite(fix.date.seconds) && std::abs(fix.latitude) <= 90 &&
           std::abs(fix.longitude) <= 180;
}

bool isSpeed(double speed) {
    return speed > 0 && speed < FastestBoat;
}

TrackPlace trackPlaceOf(const gpsrawdata& fix, const TrackPlace& first, double clockOffset) {
    TrackPlace point;
    point.time = fix.date.seconds - clockOffset;
    point.latitude = fix.latitude;
    point.longitude = fix.longitude;
    point.east = (fix.longitude - first.longitude) * DegreesToRadians * EarthRadius *
                 std::cos(first.latitude * DegreesToRadians);
    point.north = (fix.latitude - first.latitude) * DegreesToRadians * EarthRadius;
    point.speed = isSpeed(fix.speed) ? fix.speed : 0;
    return point;
}

double stepBetween(const TrackPlace& from, const TrackPlace& to) {
    const double seconds = to.time - from.time;
    if (from.speed > 0 && to.speed > 0 && seconds <= LongestTrackHole)
        return (from.speed + to.speed) / 2 * seconds;
    return std::hypot(to.east - from.east, to.north - from.north);
}

} // namespace

Track trackOf(std::span<const gpsrawdata> fixes, double clockOffset) {
    std::vector<gpsrawdata> ordered;
    std::ranges::copy_if(fixes, std::back_inserter(ordered), isPlace);
    std::ranges::stable_sort(ordered, {}, [](const gpsrawdata& fix) { return fix.date; });
    Track track;
    track.reserve(ordered.size());
    for (const gpsrawdata& fix : ordered) {
        TrackPlace first;
        first.latitude = ordered.front().latitude;
        first.longitude = ordered.front().longitude;
        TrackPlace point = trackPlaceOf(fix, first, clockOffset);
        if (!track.empty()) {
            if (point.time <= track.back().time)
                continue;
            point.distance = track.back().distance + stepBetween(track.back(), point);
        }
        track.push_back(point);
    }
    return track;
}

std::optional<TrackPlace> placeAt(const Track& track, double time) {
    const auto next = std::ranges::lower_bound(track, time, {}, &TrackPlace::time);
    if (next == track.end())
        return std::nullopt;
    if (next->time == time)
        return *next;
    if (next == track.begin() || next->time - std::prev(next)->time > LongestTrackHole)
        return std::nullopt;
    const TrackPlace& from = *std::prev(next);
    const double share = (time - from.time) / (next->time - from.time);
    TrackPlace point = from;
    const auto mix = [&](double TrackPlace::*member) {
        point.*member = std::lerp(from.*member, (*next).*member, share);
    };
    for (const auto member : {&TrackPlace::time, &TrackPlace::latitude, &TrackPlace::longitude,
                              &TrackPlace::east, &TrackPlace::north, &TrackPlace::distance})
        mix(member);
    if (from.speed > 0 && next->speed > 0)
        mix(&TrackPlace::speed);
    else
        point.speed = 0;
    return point;
}

std::optional<double> speedAt(const Track& track, double time) {
    const auto place = placeAt(track, time);
    return place && place->speed > 0 ? std::optional(place->speed) : std::nullopt;
}

std::optional<double> distanceBetween(const Track& track, double from, double to) {
    const auto start = placeAt(track, from);
    const auto end = placeAt(track, to);
    return start && end ? std::optional(end->distance - start->distance) : std::nullopt;
}

std::size_t nearestPoint(const Track& track, double east, double north) {
    const auto nearest = std::ranges::min_element(track, {}, [&](const TrackPlace& point) {
        return std::hypot(point.east - east, point.north - north);
    });
    return static_cast<std::size_t>(nearest - track.begin());
}

} // namespace kavela
