#include "boatmotion/strokes/clocks.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double Day = 86400;
constexpr double Hour = 3600;
constexpr double GreatestDate = 1e11;     // s
constexpr double GreatestSpeed = 15;      // m/s
constexpr double LeastFixDistance = 0.05; // s

struct Span {
    double first = 0;
    double last = 0;
    [[nodiscard]] bool hasWithin(double date, double margin) const {
        return date >= first - margin && date <= last + margin;
    }
};

std::optional<Span> fixDatesOf(std::span<const gpsrawdata> gps) {
    std::optional<Span> dates;
    for (const gpsrawdata& fix : gps) {
        const double date = fix.date.seconds;
        if (!(std::abs(date) <= GreatestDate))
            continue;
        if (!dates)
            dates = Span{date, date};
        dates->first = std::min(dates->first, date);
        dates->last = std::max(dates->last, date);
    }
    return dates;
}

} // namespace

ClockRelation clockRelation(double firstStamp, double lastStamp, std::span<const gpsrawdata> gps,
                            std::optional<ReferenceDate> start) {
    const auto dates = fixDatesOf(gps);
    if (start && !(std::abs(start->seconds) <= GreatestDate))
        start.reset();
    if (!dates && !start)
        return {0, true};
    const double begun = start.value_or(ReferenceDate{}).seconds;
    const Span known = dates.value_or(Span{begun, begun});
    // The clock of a device that has run for years is still far from the dates of any recording.
    const double middle = (firstStamp + lastStamp) / 2;
    if (known.hasWithin(middle, Day))
        return {0, false};
    if (start && known.hasWithin(start->seconds, Hour))
        return {start->seconds - firstStamp, false};
    return {known.first - firstStamp, true};
}

std::vector<SpeedFix> speedFixes(std::span<const gpsrawdata> gps, double offset) {
    std::vector<SpeedFix> fixes;
    fixes.reserve(gps.size());
    for (const gpsrawdata& fix : gps)
        if (std::abs(fix.date.seconds) <= GreatestDate && fix.speed >= 0 &&
            fix.speed <= GreatestSpeed)
            fixes.push_back({fix.date.seconds - offset, fix.speed});
    std::stable_sort(fixes.begin(), fixes.end(),
                     [](const SpeedFix& a, const SpeedFix& b) { return a.time < b.time; });
    const auto isRepeat = [](const SpeedFix& a, const SpeedFix& b) {
        return b.time - a.time < LeastFixDistance;
    };
    fixes.erase(std::unique(fixes.begin(), fixes.end(), isRepeat), fixes.end());
    return fixes;
}

} // namespace kavela::strokes
