#include "boatmotion/imports/track_builder.h"

#include "common/text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::imports {

namespace {

constexpr double FarthestNeighbour = 10;   // s
constexpr double GreatestTrackSpeed = 50;  // m/s; a fix that jumped
constexpr double GreatestTrackDate = 1e10; // s, three hundred years

/// Metres between two positions (haversine, on a globe of mean radius).
double distanceBetween(const gpsrawdata& a, const gpsrawdata& b) {
    constexpr double Radius = 6371008.8;
    constexpr double Radian = std::numbers::pi / 180;
    const double north = std::sin((b.latitude - a.latitude) * Radian / 2);
    const double east = std::sin((b.longitude - a.longitude) * Radian / 2);
    const double square =
        north * north + std::cos(a.latitude * Radian) * std::cos(b.latitude * Radian) * east * east;
    return 2 * Radius * std::asin(std::min(1.0, std::sqrt(square)));
}

double computedSpeed(const std::vector<gpsrawdata>& fixes, std::size_t index) {
    double distance = 0;
    double time = 0;
    const auto addWay = [&](std::size_t from, std::size_t to) {
        const double seconds = fixes[to].date.seconds - fixes[from].date.seconds;
        if (seconds > FarthestNeighbour)
            return;
        distance += distanceBetween(fixes[from], fixes[to]);
        time += seconds;
    };
    if (index > 0)
        addWay(index - 1, index);
    if (index + 1 < fixes.size())
        addWay(index, index + 1);
    return time > 0 && distance <= GreatestTrackSpeed * time ? distance / time : -1;
}

/// Gives how many values share their moment with one before.
template <class Value>
std::size_t orderByDate(std::vector<Value>& values) {
    std::stable_sort(values.begin(), values.end(),
                     [](const Value& a, const Value& b) { return a.date < b.date; });
    const std::size_t all = values.size();
    const auto isRepeat = [](const Value& a, const Value& b) { return a.date == b.date; };
    values.erase(std::unique(values.begin(), values.end(), isRepeat), values.end());
    return all - values.size();
}

bool isBetween(double value, double least, double most) {
    return value >= least && value <= most;
}

std::string leftOutText(LeftOut what, std::int64_t count) {
    switch (what) {
    case LeftOut::OutsideGlobe:
        return sayCount(count, "Left out: {} positions outside the globe.",
                        "Left out: {} positions outside the globe.");
    case LeftOut::WildSpeed:
        return sayCount(count, "Left out: {} speeds that no boat has.",
                        "Left out: {} speeds that no boat has.");
    case LeftOut::Undated:
        return sayCount(count, "Left out: {} points without a date.",
                        "Left out: {} points without a date.");
    case LeftOut::WildHeartRate:
        return sayCount(count, "Left out: {} heart rates that are none.",
                        "Left out: {} heart rates that are none.");
    case LeftOut::SameMoment:
        return sayCount(count, "Left out: {} positions at the moment of another.",
                        "Left out: {} positions at the moment of another.");
    case LeftOut::SameHeartMoment:
        return sayCount(count, "Left out: {} heart rates at the moment of another.",
                        "Left out: {} heart rates at the moment of another.");
    case LeftOut::RoutePoint:
        return sayCount(count, "Left out: {} way points and points of routes.",
                        "Left out: {} way points and points of routes.");
    }
    return {};
}

} // namespace

std::string computedSpeedsText(std::size_t count) {
    return sayCount(static_cast<std::int64_t>(count),
                    "The speed of {} positions was computed from the positions around them.",
                    "The speed of {} positions was computed from the positions around them.");
}

std::size_t completeFixes(std::vector<gpsrawdata>& fixes) {
    (void)orderByDate(fixes);
    std::size_t computed = 0;
    for (std::size_t i = 0; i < fixes.size(); ++i) {
        if (fixes[i].speed >= 0)
            continue;
        fixes[i].speed = computedSpeed(fixes, i);
        computed += fixes[i].speed >= 0;
    }
    return computed;
}

void TrackBuilder::leaveOut(LeftOut what, std::size_t count) {
    if (count == 0)
        return;
    const auto known =
        std::ranges::find(m_leftOut, what, [](const auto& entry) { return entry.first; });
    if (known == m_leftOut.end())
        m_leftOut.emplace_back(what, count);
    else
        known->second += count;
}

void TrackBuilder::addFix(const TrackPoint& point, ReferenceDate date) {
    if (!point.latitude && !point.longitude)
        return;
    if (!point.latitude || !point.longitude || !isBetween(*point.latitude, -90, 90) ||
        !isBetween(*point.longitude, -180, 180))
        return leaveOut(LeftOut::OutsideGlobe);
    double speed = point.speed.value_or(-1);
    if (point.speed && !isBetween(speed, 0, GreatestTrackSpeed)) {
        leaveOut(LeftOut::WildSpeed);
        speed = -1;
    }
    m_track.gps.push_back({date, speed, *point.latitude, *point.longitude});
}

void TrackBuilder::add(const TrackPoint& point) {
    if (++m_points > MostTrackPoints)
        throw DecodeError({{}, say("the track has more than {} points", MostTrackPoints)});
    if (!point.date || !isBetween(*point.date, -GreatestTrackDate, GreatestTrackDate))
        return leaveOut(LeftOut::Undated);
    const ReferenceDate date{*point.date};
    addFix(point, date);
    if (!point.heartRate)
        return;
    if (isBetween(*point.heartRate, 1, 300))
        m_track.heart.push_back({date, *point.heartRate});
    else
        leaveOut(LeftOut::WildHeartRate);
}

ImportedTrack TrackBuilder::finish() && {
    leaveOut(LeftOut::SameMoment, orderByDate(m_track.gps));
    leaveOut(LeftOut::SameHeartMoment, orderByDate(m_track.heart));
    const std::size_t computed = completeFixes(m_track.gps);
    for (const auto& [what, count] : m_leftOut)
        note(leftOutText(what, static_cast<std::int64_t>(count)));
    if (computed > 0)
        note(computedSpeedsText(computed));
    if (m_points == 0)
        note(say("There are no points in the file."));
    return std::move(m_track);
}

} // namespace kavela::imports
