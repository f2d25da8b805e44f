#include "planning/calendar_day.h"

#include <cmath>

namespace kavela {

using namespace std::chrono;

namespace {

constexpr double SecondsPerDay = 86400;

std::optional<sys_days> dayAt(double secondsSince2001) {
    constexpr double FirstDay = -719162; // 0001-01-01
    constexpr double LastDay = 2932896;  // 9999-12-31
    const double day = std::floor((secondsSince2001 + SecondsFrom1970To2001) / SecondsPerDay);
    if (!(day >= FirstDay && day <= LastDay))
        return std::nullopt;
    return sys_days(days(static_cast<int>(day)));
}

} // namespace

std::optional<sys_days> dayOfMidnight(ReferenceDate midnight) {
    return dayAt(midnight.seconds + SecondsPerDay / 2);
}

std::optional<sys_days> dayOfMoment(ReferenceDate moment) {
    return dayAt(moment.seconds);
}

sys_days mondayOf(sys_days day) {
    return day - (weekday(day) - Monday);
}

ReferenceDate midnightOf(sys_days day) {
    return referenceDate(year_month_day(day));
}

std::optional<sys_days> dayOf(const sessioninmicro_v5& session) {
    const std::vector<std::int64_t>& date = session.dateinInts;
    if (date.size() >= 3 && date[0] >= 1 && date[0] <= 9999 && date[1] >= 1 && date[1] <= 12 &&
        date[2] >= 1 && date[2] <= 31) {
        const year_month_day day(year(static_cast<int>(date[0])),
                                 month(static_cast<unsigned>(date[1])),
                                 std::chrono::day(static_cast<unsigned>(date[2])));
        if (day.ok())
            return sys_days(day);
    }
    return dayOfMoment(session.trainingtime);
}

std::optional<minutes> timeOf(const sessioninmicro_v5& session) {
    const std::vector<std::int64_t>& time = session.trainingtimeInt;
    if (time.size() < 2 || time[0] < 0 || time[0] > 23 || time[1] < 0 || time[1] > 59)
        return std::nullopt;
    return hours(time[0]) + minutes(time[1]);
}

std::string startText(const microsplanning_v5& week) {
    const auto day = dayOfMidnight(week.monday);
    return dayText(day ? midnightOf(*day) : week.monday);
}

std::optional<sys_days> mondayOf(const microsplanning_v5& week) {
    const auto day = dayOfMidnight(week.monday);
    return day && weekday(*day) == Monday ? day : std::nullopt;
}

} // namespace kavela
