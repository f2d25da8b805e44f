#include "planning/heart_trend.h"

#include "planning/calendar_day.h"

#include <cmath>
#include <map>

namespace kavela {

using namespace std::chrono;

namespace {

constexpr days Week(7);
constexpr days UsualDays(28);
constexpr std::size_t FewestUsualDays = 7;

using ValuesByDay = std::map<sys_days, double>;

struct MeanAndCount {
    double mean = 0;
    std::size_t count = 0;

    void add(double value) { mean += (value - mean) / static_cast<double>(++count); }
};

ValuesByDay meansByDay(std::span<const DailyValue> values) {
    std::map<sys_days, MeanAndCount> means;
    for (const DailyValue& value : values)
        if (const auto day = dayOfMoment(value.date); day && std::isfinite(value.value))
            means[*day].add(value.value);
    ValuesByDay byDay;
    for (const auto& [day, mean] : means)
        byDay[day] = mean.mean;
    return byDay;
}

/// Mean over the measured days from `first` up to, not including, `end`.
MeanAndCount meanBetween(const ValuesByDay& values, sys_days first, sys_days end) {
    MeanAndCount mean;
    for (auto at = values.lower_bound(first); at != values.end() && at->first < end; ++at)
        mean.add(at->second);
    return mean;
}

std::optional<UsualBand> usualBand(const ValuesByDay& values, sys_days first, sys_days end) {
    const MeanAndCount usual = meanBetween(values, first, end);
    if (usual.count < FewestUsualDays)
        return std::nullopt;
    double squares = 0;
    for (auto at = values.lower_bound(first); at != values.end() && at->first < end; ++at)
        squares += (at->second - usual.mean) * (at->second - usual.mean);
    const double deviation = std::sqrt(squares / static_cast<double>(usual.count - 1));
    return UsualBand{usual.mean - deviation, usual.mean + deviation};
}

AgainstUsual standing(double mean, const std::optional<UsualBand>& usual) {
    if (!usual)
        return AgainstUsual::Unknown;
    if (mean < usual->low)
        return AgainstUsual::Below;
    return mean > usual->high ? AgainstUsual::Above : AgainstUsual::Within;
}

} // namespace

std::vector<DailyValue> restingSeries(std::span<const restingdataplanning_v1> resting) {
    std::vector<DailyValue> series;
    for (const restingdataplanning_v1& entry : resting)
        if (entry.rhr > 0)
            series.push_back({entry.date, entry.rhr});
    return series;
}

std::vector<DailyValue> variabilitySeries(std::span<const variabilitydataplanning_v2> variability,
                                          double variabilitydataplanning_v2::*index) {
    std::vector<DailyValue> series;
    for (const variabilitydataplanning_v2& entry : variability)
        if (entry.*index > 0)
            series.push_back({entry.date, entry.*index});
    return series;
}

std::vector<TrendDay> heartTrend(std::span<const DailyValue> values) {
    const ValuesByDay byDay = meansByDay(values);
    std::vector<TrendDay> trend;
    for (const auto& [day, value] : byDay) {
        const sys_days weekBegin = day + days(1) - Week;
        TrendDay entry{midnightOf(day), value, 0, {}, AgainstUsual::Unknown};
        entry.weekMean = meanBetween(byDay, weekBegin, day + days(1)).mean;
        entry.usual = usualBand(byDay, weekBegin - UsualDays, weekBegin);
        entry.standing = standing(entry.weekMean, entry.usual);
        trend.push_back(entry);
    }
    return trend;
}

} // namespace kavela
