#pragma once

#include <chrono>
#include <compare>
#include <functional>
#include <string>

namespace kavela {

/// A point in time: seconds, with fraction, since 2001-01-01 00:00:00 UTC.
struct ReferenceDate {
    double seconds = 0;

    friend auto operator<=>(const ReferenceDate&, const ReferenceDate&) = default;
};

/// The clock that is handed to whoever needs the present moment.
using Clock = std::function<ReferenceDate()>;

/// Seconds from 1970-01-01 to 2001-01-01, both 00:00:00 UTC.
inline constexpr double SecondsFrom1970To2001 = 978307200.0;

/// The computer's own clock.
[[nodiscard]] ReferenceDate systemNow();

/// The date of a calendar day and time of day, all UTC.
[[nodiscard]] ReferenceDate referenceDate(std::chrono::year_month_day day, double secondsOfDay = 0);

/// "2024-05-11" in UTC; a moment outside the years 0 to 9999 is given as its number of seconds.
[[nodiscard]] std::string dayText(ReferenceDate date);

} // namespace kavela
