#include "boatmotion/session_clock.h"

#include "boatmotion/session_track.h"
#include "boatmotion/strokes/segments.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela {

namespace {

constexpr double SecondsOfDay = 86400;
constexpr double FinestStep = 0.25; // s
constexpr double MostSteps = 1500;
constexpr double MovingSpeed = 0.8;     // m/s
constexpr double StrokeWeight = 0.2;    // of a stroke made while moving, against a turn of 1 rad
constexpr double CourseReach = 1;       // s before and after a moment
constexpr double LeastWay = 0.7;        // m: less tells no course
constexpr double ScoreTolerance = 0.02; // as good as the best

struct Dates {
    double first = 0;
    double last = 0;
};

/// The dates that the recording spans.
Dates datesOf(const smartAlldata_v4& session) {
    Dates dates{session.info.date.seconds, session.info.date.seconds};
    bool isFirst = true;
    const auto take = [&](double date) {
        if (!std::isfinite(date))
            return;
        dates.first = isFirst ? date : std::min(dates.first, date);
        dates.last = isFirst ? date : std::max(dates.last, date);
        isFirst = false;
    };
    for (const gpsrawdata& fix : session.gps)
        take(fix.date.seconds);
    for (const heartmotiondata& reading : session.heart)
        take(reading.date.seconds);
    return dates;
}

std::optional<double> courseAt(const Track& track, double time) {
    const auto before = placeAt(track, time - CourseReach);
    const auto after = placeAt(track, time + CourseReach);
    if (!before || !after)
        return std::nullopt;
    const double east = after->east - before->east;
    const double north = after->north - before->north;
    if (std::hypot(east, north) < LeastWay)
        return std::nullopt;
    return std::atan2(east, north);
}

double courseChange(const Track& track, double from, double to) {
    const auto before = courseAt(track, from);
    const auto after = courseAt(track, to);
    if (!before || !after)
        return 0;
    return std::abs(std::remainder(*after - *before, 2 * std::numbers::pi));
}

/// How well the entries fit the way of the boat when they happen `offset` later than their stamps.
double fitOf(const smartAlldata_v4& session, const Track& datedTrack, double offset) {
    double fit = 0;
    for (const smartBMdata_v4& entry : session.strokesData) {
        const double date = entry.timestamp + offset;
        if (isStroke(entry))
            fit += speedAt(datedTrack, date).value_or(0) > MovingSpeed ? StrokeWeight : 0;
        else
            fit += courseChange(datedTrack, date, date + entry.rotation.rotationTime);
    }
    return fit;
}

double bestOffset(const smartAlldata_v4& session, double lowest, double highest) {
    const double width = highest - lowest;
    if (!(width >= FinestStep) || !std::isfinite(width) || session.gps.empty())
        return std::isfinite(lowest) ? lowest + std::max(0.0, std::isfinite(width) ? width : 0) / 2
                                     : 0;
    const Track track = trackOf(session.gps, 0);
    const auto steps = static_cast<std::size_t>(std::min(MostSteps, width / FinestStep));
    const double step = width / static_cast<double>(steps);
    std::vector<double> fits;
    for (std::size_t i = 0; i <= steps; ++i)
        fits.push_back(fitOf(session, track, lowest + static_cast<double>(i) * step));
    const auto best = std::ranges::max_element(fits);
    const double enough = *best * (1 - ScoreTolerance);
    const auto isGood = [&](double fit) { return fit >= enough; };
    const auto end = std::find_if_not(best, fits.end(), isGood);
    const double middle = static_cast<double>((best - fits.begin()) + (end - fits.begin()) - 1) / 2;
    return lowest + middle * step;
}

} // namespace

SessionClock clockOf(const smartAlldata_v4& session) {
    const Dates dates = datesOf(session);
    if (session.strokesData.empty())
        return {dates.first, true};
    const auto [first, last] =
        std::ranges::minmax(session.strokesData, {}, &smartBMdata_v4::timestamp);
    if (std::abs(first.timestamp - dates.first) < SecondsOfDay)
        return {};
    return {bestOffset(session, dates.first - first.timestamp, dates.last - last.timestamp), true};
}

} // namespace kavela
