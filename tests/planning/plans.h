#pragma once

#include "planning/calendar_day.h"
#include "planning/planning_records.h"

/// Small pieces of plannings.
namespace kavela::test {

inline std::chrono::sys_days day(int year, unsigned month, unsigned dayOfMonth) {
    return std::chrono::sys_days(std::chrono::year(year) / std::chrono::month(month) /
                                 std::chrono::day(dayOfMonth));
}

/// A session on a day at half past nine in a place an hour ahead of UTC.
inline sessioninmicro_v5 sessionOn(std::chrono::sys_days on, std::string title,
                                   std::vector<double> data = {}) {
    const std::chrono::year_month_day date(on);
    sessioninmicro_v5 session;
    session.dateinInts = {static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                          static_cast<unsigned>(date.day())};
    session.trainingtimeInt = {9, 30};
    session.trainingtime = {midnightOf(on).seconds + 8.5 * 3600};
    session.titleanddes = {std::move(title), ""};
    session.data = std::move(data);
    return session;
}

} // namespace kavela::test
