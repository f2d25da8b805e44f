#include "common/reference_date.h"

#include "common/number_text.h"

#include <fmt/format.h>

#include <cmath>

namespace kavela {

namespace {
constexpr double SecondsPerDay = 86400.0;
}

ReferenceDate systemNow() {
    using namespace std::chrono;
    const duration<double> since1970 = system_clock::now().time_since_epoch();
    return {since1970.count() - SecondsFrom1970To2001};
}

ReferenceDate referenceDate(std::chrono::year_month_day day, double secondsOfDay) {
    const auto days = std::chrono::sys_days(day).time_since_epoch().count();
    return {static_cast<double>(days) * SecondsPerDay - SecondsFrom1970To2001 + secondsOfDay};
}

std::string dayText(ReferenceDate date) {
    using namespace std::chrono;
    const double daysSince1970 = std::floor((date.seconds + SecondsFrom1970To2001) / SecondsPerDay);
    constexpr double FirstDay = -719528; // 0000-01-01
    constexpr double LastDay = 2932896;  // 9999-12-31
    if (!(daysSince1970 >= FirstDay && daysSince1970 <= LastDay))
        return shortestText(date.seconds) + " s";
    const year_month_day day{sys_days{days{static_cast<int>(daysSince1970)}}};
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(day.year()),
                       static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
}

} // namespace kavela
