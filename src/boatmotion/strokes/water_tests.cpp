#include "boatmotion/strokes/water_tests.h"

#include "boatmotion/strokes/filters.h"
#include "boatmotion/strokes/stretch_figures.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

using namespace strokes;
using std::numbers::pi;

constexpr double DegreeInRadians = pi / 180;

/// Cuts a lap into its turns and what lies between them.
Lap lapFrom(const MotionAnalysis& analysis, double start, double end) {
    Lap lap;
    StretchSums turning(analysis);
    StretchSums straight(analysis);
    const auto addPart = [&](double from, double to, std::optional<std::size_t> turn) {
        if (!(to > from))
            return;
        (turn ? turning : straight).add(from, to);
        lap.parts.push_back(
            {turn.has_value(), turn.value_or(0), figuresBetween(analysis, from, to)});
    };
    double done = start;
    for (std::size_t i = 0; i < analysis.turns.size(); ++i) {
        const Turn& turn = analysis.turns[i];
        if (turn.peak < start || turn.peak >= end)
            continue;
        const double from = std::max(turn.start, done);
        const double to = std::min(turn.end, end);
        addPart(done, from, std::nullopt);
        addPart(from, to, i);
        done = std::max(done, to);
    }
    addPart(done, end, std::nullopt);
    lap.figures = figuresBetween(analysis, start, end);
    lap.turning = turning.figures();
    lap.straight = straight.figures();
    return lap;
}

/// A place on the plane around another, in metres.
struct Point {
    double east = 0;
    double north = 0;
};

Point pointFrom(const TestPlace& origin, double latitude, double longitude) {
    constexpr double MetresPerDegree = 111320;
    return {(longitude - origin.longitude) * MetresPerDegree *
                std::cos(origin.latitude * DegreeInRadians),
            (latitude - origin.latitude) * MetresPerDegree};
}

/// Twice the area of a triangle, above 0 when it runs to the left.
double area(const Point& a, const Point& b, const Point& c) {
    return (b.east - a.east) * (c.north - a.north) - (b.north - a.north) * (c.east - a.east);
}

/// The share of the way from `a` to `b` at which it crosses the line, where it does.
std::optional<double> lineCrossing(const Point& a, const Point& b, const Point& from,
                                   const Point& to) {
    const double before = area(from, to, a);
    const double after = area(from, to, b);
    const bool changesSide = (before < 0) != (after < 0);
    const bool isBetweenEnds = (area(a, b, from) < 0) != (area(a, b, to) < 0);
    if (!changesSide || !isBetweenEnds)
        return std::nullopt;
    return before / (before - after);
}

bool isOnEarth(const gpsrawdata& fix) {
    return std::abs(fix.latitude) <= 90 && std::abs(fix.longitude) <= 180 &&
           std::abs(fix.date.seconds) <= 1e11 && (fix.latitude != 0 || fix.longitude != 0);
}

double headingBetween(const MotionSeries& series, double start, double end) {
    const auto [first, last] = valuesBetween(series, start, end);
    double heading = 0;
    for (std::size_t i = first; i < last; ++i)
        heading += series.yawRate[i] * Step;
    return heading;
}

bool isHalfOfEight(const Turn& turn) {
    return std::abs(turn.angle) >= 120 * DegreeInRadians &&
           std::abs(turn.angle) <= 330 * DegreeInRadians;
}

Eight eightFrom(const MotionAnalysis& analysis, std::size_t first) {
    constexpr double MostNetHeading = 60 * DegreeInRadians;
    const Turn& one = analysis.turns[first];
    const Turn& two = analysis.turns[first + 1];
    // Where there is no turn to come from or to go to, the outer ways are taken as long as the
    // one in the middle.
    const double middle = std::max(0.0, two.start - one.end);
    const bool hasBefore = first > 0;
    const bool hasAfter = first + 2 < analysis.turns.size();
    const double before = hasBefore ? one.start - analysis.turns[first - 1].end : middle;
    const double after = hasAfter ? analysis.turns[first + 2].start - two.end : middle;
    const double start =
        std::max(one.start - std::max(0.0, before) / 2, analysis.series.time.front());
    const double end = std::min(two.end + std::max(0.0, after) / 2, analysis.series.time.back());
    Eight eight{first, first + 1, figuresBetween(analysis, start, end), 0, false};
    eight.netHeading = headingBetween(analysis.series, start, end);
    eight.isWhole = std::abs(eight.netHeading) < MostNetHeading;
    return eight;
}

} // namespace

std::vector<Lap> lapsBetween(const MotionAnalysis& analysis, std::span<const double> marks) {
    std::vector<double> ordered(marks.begin(), marks.end());
    std::sort(ordered.begin(), ordered.end());
    std::vector<Lap> laps;
    for (std::size_t i = 0; i + 1 < ordered.size(); ++i)
        if (ordered[i + 1] > ordered[i])
            laps.push_back(lapFrom(analysis, ordered[i], ordered[i + 1]));
    return laps;
}

std::vector<double> lineCrossings(const MotionAnalysis& analysis, std::span<const gpsrawdata> gps,
                                  const StartLine& line) {
    constexpr double LongestStep = 10;  // s, between fixes that are joined
    constexpr double LeastDistance = 5; // s, between crossings
    std::vector<const gpsrawdata*> fixes;
    for (const gpsrawdata& fix : gps)
        if (isOnEarth(fix))
            fixes.push_back(&fix);
    std::stable_sort(fixes.begin(), fixes.end(),
                     [](const gpsrawdata* a, const gpsrawdata* b) { return a->date < b->date; });
    const Point to = pointFrom(line.from, line.to.latitude, line.to.longitude);
    std::vector<double> moments;
    for (std::size_t i = 0; i + 1 < fixes.size(); ++i) {
        const double seconds = fixes[i + 1]->date.seconds - fixes[i]->date.seconds;
        const auto part = lineCrossing(
            pointFrom(line.from, fixes[i]->latitude, fixes[i]->longitude),
            pointFrom(line.from, fixes[i + 1]->latitude, fixes[i + 1]->longitude), {}, to);
        if (!part || seconds > LongestStep)
            continue;
        const double moment =
            fixes[i]->date.seconds + *part * seconds - analysis.clockOffset - analysis.fixLag;
        if (moments.empty() || moment - moments.back() >= LeastDistance)
            moments.push_back(moment);
    }
    return moments;
}

std::vector<Eight> findEights(const MotionAnalysis& analysis) {
    std::vector<Eight> eights;
    for (std::size_t i = 0; i + 1 < analysis.turns.size();) {
        const Turn& one = analysis.turns[i];
        const Turn& two = analysis.turns[i + 1];
        const bool isPair = isHalfOfEight(one) && isHalfOfEight(two) && one.angle * two.angle < 0;
        if (isPair)
            eights.push_back(eightFrom(analysis, i));
        i += isPair ? 2 : 1;
    }
    return eights;
}

} // namespace kavela
