#include "performance/season_days.h"

#include <chrono>
#include <cmath>

namespace kavela {

double seasonDay(ReferenceDate date) {
    constexpr double SecondsOfDay = 86400;
    return std::floor(date.seconds / SecondsOfDay);
}

std::int64_t yearOfDate(ReferenceDate date) {
    constexpr double MostDays = 2'900'000; // the calendar of the library ends somewhat later
    const double day = seasonDay(date);
    if (!(std::abs(day) < MostDays))
        return 0;
    using namespace std::chrono;
    constexpr sys_days First = 2001y / January / 1;
    return static_cast<int>(year_month_day(First + days(static_cast<int>(day))).year());
}

} // namespace kavela
