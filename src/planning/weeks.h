#pragma once

#include "planning/planning_records.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// Arithmetic of the weeks of a season. Sessions are moved by whole days of the calendar: their
/// hour of the day stays, and their start as a point in time moves by as many days of 24 hours.
namespace kavela {

inline constexpr std::size_t WeeksOfSeason = 52;

/// Empty weeks one after the other, numbered from 1. `firstDay` may be any day of the first week.
[[nodiscard]] std::vector<microsplanning_v5> newSeason(std::chrono::sys_days firstDay,
                                                       std::size_t count = WeeksOfSeason);

/// The first Monday of a calendar year's weeks: that of the week with 4 January.
[[nodiscard]] std::chrono::sys_days firstMondayOf(std::chrono::year year);

/// Numbers of the weeks (from 0) whose date is on no Monday or in no calendar.
[[nodiscard]] std::vector<std::size_t> weeksNotOnMonday(std::span<const microsplanning_v5> weeks);

/// The week that a day is in; nothing where there is none.
[[nodiscard]] std::optional<std::size_t> weekOf(std::span<const microsplanning_v5> weeks,
                                                std::chrono::sys_days day);

/// Which session of a season: the week and the place in its list.
struct SessionPlace {
    std::size_t week = 0;
    std::size_t session = 0;

    friend bool operator==(const SessionPlace&, const SessionPlace&) = default;
};

/// Moves a session to a day, behind the sessions that are there, into the week of that day; gives
/// its new place. Nothing is changed, and nothing given, when there is no such session, no week of
/// that day, or the session stands on no day.
std::optional<SessionPlace> moveSession(std::span<microsplanning_v5> weeks, SessionPlace from,
                                        std::chrono::sys_days to);

/// Moves a session to another time of its day; does nothing for a time that no day has.
void setTimeOfDay(sessioninmicro_v5& session, std::chrono::minutes time);

/// Numbers the sessions of each day by their order in the list.
void renumberDays(microsplanning_v5& week);

/// A week with the content of another one, moved to its own days: sessions, totals, load, cycles,
/// place, tests and goals. Number and Monday stay; so do event and health, which belong to the
/// calendar and not to the plan. Nothing where one of the two dates is in no calendar.
[[nodiscard]] std::optional<microsplanning_v5> copiedWeek(const microsplanning_v5& content,
                                                          const microsplanning_v5& target);

/// Copies a block of weeks over the weeks behind it, as often as asked and as far as the season
/// goes; gives how many weeks were written. Weeks with a date in no calendar are left alone.
std::size_t repeatBlock(std::span<microsplanning_v5> weeks, std::size_t first, std::size_t count,
                        std::size_t times);

} // namespace kavela
