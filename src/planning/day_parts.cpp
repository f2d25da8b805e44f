#include "planning/day_parts.h"

#include "planning/calendar_day.h"

#include <algorithm>
#include <tuple>

namespace kavela {

using namespace std::chrono;

DayPart partOf(const sessioninmicro_v5& session) {
    constexpr hours Noon{12};
    constexpr hours Evening{17};
    const auto time = timeOf(session);
    if (!time)
        return DayPart::AnyTime;
    return *time < Noon      ? DayPart::Morning
           : *time < Evening ? DayPart::Afternoon
                             : DayPart::Evening;
}

std::optional<minutes> usualTimeOf(DayPart part) {
    switch (part) {
    case DayPart::Morning:
        return hours(9);
    case DayPart::Afternoon:
        return hours(15);
    case DayPart::Evening:
        return hours(18);
    case DayPart::AnyTime:
        break;
    }
    return std::nullopt;
}

WeekSessions sessionsByDay(const microsplanning_v5& week) {
    WeekSessions sorted;
    const auto first = dayOfMidnight(week.monday);
    for (std::size_t i = 0; i < week.sessions.size(); ++i) {
        const auto day = dayOf(week.sessions[i]);
        if (!first || !day || *day < *first || *day >= *first + days(7))
            sorted.elsewhere.push_back(i);
        else
            sorted
                .days[static_cast<std::size_t>((*day - *first).count())]
                     [static_cast<std::size_t>(partOf(week.sessions[i]))]
                .push_back(i);
    }
    const auto order = [&](std::size_t i) {
        const sessioninmicro_v5& session = week.sessions[i];
        return std::tuple(timeOf(session).value_or(minutes(0)), session.dayPosition, i);
    };
    for (auto& day : sorted.days)
        for (std::vector<std::size_t>& part : day)
            std::ranges::sort(part, {}, order);
    return sorted;
}

} // namespace kavela
