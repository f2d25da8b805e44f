#pragma once

#include "planning/planning_records.h"

#include <chrono>
#include <optional>
#include <string>

/// Days of a planning. A day is a calendar day where the training takes place; moments that stand
/// for a day are midnights there, which in UTC is up to half a day away.
namespace kavela {

/// The day that a midnight stands for: the nearest one, in whatever time zone it was written.
/// Nothing for a date outside the years 1 to 9999.
[[nodiscard]] std::optional<std::chrono::sys_days> dayOfMidnight(ReferenceDate midnight);

/// The day of a moment, UTC. Nothing for a date outside the years 1 to 9999.
[[nodiscard]] std::optional<std::chrono::sys_days> dayOfMoment(ReferenceDate moment);

/// The Monday on or before a day.
[[nodiscard]] std::chrono::sys_days mondayOf(std::chrono::sys_days day);

/// Midnight UTC of a day.
[[nodiscard]] ReferenceDate midnightOf(std::chrono::sys_days day);

/// Where a session stands in the calendar: its date as integers where they are a date, otherwise
/// the day of its start. Nothing where neither tells a day.
[[nodiscard]] std::optional<std::chrono::sys_days> dayOf(const sessioninmicro_v5& session);

/// Its time of day as integers, where they are one.
[[nodiscard]] std::optional<std::chrono::minutes> timeOf(const sessioninmicro_v5& session);

/// The day on which a week begins, "2026-03-09"; outside the years 0 to 9999 its number of seconds.
[[nodiscard]] std::string startText(const microsplanning_v5& week);

/// The Monday of a week; nothing where its date is in no calendar or on another day.
[[nodiscard]] std::optional<std::chrono::sys_days> mondayOf(const microsplanning_v5& week);

} // namespace kavela
