#include "performance/season_trend.h"

#include "common/text.h"
#include "performance/season_rules.h"
#include "statistics/intervals.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kavela {

namespace {

constexpr double TrendDaySeconds = 86400;
constexpr double DaysOfYear = 365.25;

struct TrendPoint {
    double day = 0;
    double value = 0;
};

std::vector<TrendPoint> trendPoints(const SeasonMember& member, TrendOf of, Why* why) {
    std::vector<TrendPoint> points;
    for (const RaceResult& race : member.races)
        for (const PhaseResult& phase : race.phases) {
            const auto percent = of == TrendOf::Winner ? phase.percent : phase.behindSplits;
            if (!percent || phase.isMissed || !std::isfinite(phase.date.seconds))
                continue;
            points.push_back(
                {phase.date.seconds / TrendDaySeconds, 100 * std::log1p(*percent / 100)});
            if (why)
                why->input(
                    say("{} {} {}, percent", dayText(phase.date), race.location, phase.phase),
                    *percent);
        }
    return points;
}

/// Whether there are runs enough over a time long enough.
bool tellsTrend(const std::vector<TrendPoint>& points) {
    if (points.size() < SeasonTrend::LeastRuns)
        return false;
    const auto [first, last] = std::ranges::minmax(points, {}, &TrendPoint::day);
    return last.day - first.day >= SeasonTrend::LeastDays;
}

TrendVerdict verdictOf(const Interval& interval) {
    if (interval.high < 0)
        return TrendVerdict::Faster;
    return interval.low > 0 ? TrendVerdict::Slower : TrendVerdict::Unclear;
}

} // namespace

std::string_view verdictText(TrendVerdict verdict) {
    switch (verdict) {
    case TrendVerdict::Faster:
        return translated("faster");
    case TrendVerdict::Slower:
        return translated("slower");
    case TrendVerdict::Unclear:
        break;
    }
    return translated("unclear");
}

SeasonTrend seasonTrend(const SeasonMember& member, TrendOf of, Why* why) {
    const std::vector<TrendPoint> points = trendPoints(member, of, why);
    SeasonTrend trend;
    trend.runs = points.size();
    if (!tellsTrend(points))
        return trend;
    std::vector<double> days;
    std::vector<double> values;
    for (const TrendPoint& point : points) {
        days.push_back(point.day);
        values.push_back(point.value);
    }
    const SlopeOf slope = slopeOf(days, values);
    trend.perYear = slope.slope * DaysOfYear;
    if (slope.interval) {
        trend.interval = {slope.interval->low * DaysOfYear, slope.interval->high * DaysOfYear};
        trend.verdict = verdictOf(*trend.interval);
    }
    if (why) {
        if (trend.interval)
            why->uncertain(*trend.interval,
                           say("90 %, Student's t with {} degrees", points.size() - 2));
        why->note(std::string(verdictText(trend.verdict)));
        why->result(ruleOf(SeasonRule::Trend), *trend.perYear,
                    say("{:+.1f} % a year", *trend.perYear));
    }
    return trend;
}

} // namespace kavela
