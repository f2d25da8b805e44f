#pragma once

#include "planning/planning_records.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <vector>

/// A week as it hangs on the wall: seven days in parts.
namespace kavela {

/// Part of the day, by the hour at which a session begins: the morning ends at 12, the afternoon
/// at 17. A session without a time of day may be at any time.
enum class DayPart { AnyTime, Morning, Afternoon, Evening };
inline constexpr std::size_t DayParts = 4;

[[nodiscard]] DayPart partOf(const sessioninmicro_v5& session);

/// The time at which a session begins that was put into a part of the day; nothing for any time.
[[nodiscard]] std::optional<std::chrono::minutes> usualTimeOf(DayPart part);

/// The sessions of a week by their numbers in its list: by day from its first one and by part, in
/// order of time and then of place within the day.
struct WeekSessions {
    std::array<std::array<std::vector<std::size_t>, DayParts>, 7> days;
    std::vector<std::size_t> elsewhere; ///< on no day of this week

    [[nodiscard]] const std::vector<std::size_t>& at(std::size_t day, DayPart part) const {
        return days[day][static_cast<std::size_t>(part)];
    }
};

[[nodiscard]] WeekSessions sessionsByDay(const microsplanning_v5& week);

} // namespace kavela
