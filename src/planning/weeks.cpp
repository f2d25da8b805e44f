#include "planning/weeks.h"

#include "planning/calendar_day.h"

#include <algorithm>

namespace kavela {

using namespace std::chrono;

namespace {

void shift(ReferenceDate& date, days by) {
    constexpr double DaySeconds = 86400;
    date.seconds += DaySeconds * static_cast<double>(by.count());
}

std::vector<std::int64_t> asIntegers(sys_days day) {
    const year_month_day date(day);
    return {static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
            static_cast<unsigned>(date.day())};
}

void shift(sessioninmicro_v5& session, days by) {
    if (const auto day = dayOf(session))
        session.dateinInts = asIntegers(*day + by);
    shift(session.trainingtime, by);
}

void shift(testdataplanning_v5& tests, days by) {
    for (std::vector<ReferenceDate>* dates : {&tests.blood, &tests.endurance, &tests.water})
        for (ReferenceDate& date : *dates)
            shift(date, by);
}

std::int64_t sessionsOn(const microsplanning_v5& week, sys_days day) {
    return std::ranges::count_if(
        week.sessions, [&](const sessioninmicro_v5& session) { return dayOf(session) == day; });
}

} // namespace

std::vector<microsplanning_v5> newSeason(sys_days firstDay, std::size_t count) {
    std::vector<microsplanning_v5> weeks(count);
    sys_days monday = mondayOf(firstDay);
    for (std::size_t i = 0; i < count; ++i, monday += days(7)) {
        weeks[i].number = static_cast<std::int64_t>(i) + 1;
        weeks[i].monday = midnightOf(monday);
    }
    return weeks;
}

sys_days firstMondayOf(year year) {
    return mondayOf(sys_days(year / January / 4));
}

std::vector<std::size_t> weeksNotOnMonday(std::span<const microsplanning_v5> weeks) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < weeks.size(); ++i)
        if (!mondayOf(weeks[i]))
            found.push_back(i);
    return found;
}

std::optional<std::size_t> weekOf(std::span<const microsplanning_v5> weeks, sys_days day) {
    for (std::size_t i = 0; i < weeks.size(); ++i) {
        const auto first = dayOfMidnight(weeks[i].monday);
        if (first && day >= *first && day < *first + days(7))
            return i;
    }
    return std::nullopt;
}

std::optional<SessionPlace> moveSession(std::span<microsplanning_v5> weeks, SessionPlace from,
                                        sys_days to) {
    const auto week = weekOf(weeks, to);
    if (!week || from.week >= weeks.size() || from.session >= weeks[from.week].sessions.size())
        return std::nullopt;
    std::vector<sessioninmicro_v5>& source = weeks[from.week].sessions;
    const auto day = dayOf(source[from.session]);
    if (!day)
        return std::nullopt;
    sessioninmicro_v5 session = std::move(source[from.session]);
    source.erase(source.begin() + static_cast<std::ptrdiff_t>(from.session));
    renumberDays(weeks[from.week]);
    shift(session, to - *day);
    session.dayPosition = sessionsOn(weeks[*week], to);
    weeks[*week].sessions.push_back(std::move(session));
    return SessionPlace{*week, weeks[*week].sessions.size() - 1};
}

void setTimeOfDay(sessioninmicro_v5& session, minutes time) {
    if (time < minutes(0) || time >= days(1))
        return;
    const auto before = timeOf(session);
    const auto ofDay = hh_mm_ss(time);
    session.trainingtimeInt = {ofDay.hours().count(), ofDay.minutes().count()};
    if (before)
        session.trainingtime.seconds += duration<double>(time - *before).count();
}

void renumberDays(microsplanning_v5& week) {
    for (std::size_t i = 0; i < week.sessions.size(); ++i) {
        const auto day = dayOf(week.sessions[i]);
        week.sessions[i].dayPosition = std::count_if(
            week.sessions.begin(), week.sessions.begin() + static_cast<std::ptrdiff_t>(i),
            [&](const sessioninmicro_v5& other) { return dayOf(other) == day; });
    }
}

std::optional<microsplanning_v5> copiedWeek(const microsplanning_v5& content,
                                            const microsplanning_v5& target) {
    const auto from = dayOfMidnight(content.monday);
    const auto to = dayOfMidnight(target.monday);
    if (!from || !to)
        return std::nullopt;
    microsplanning_v5 week = content;
    week.number = target.number;
    week.monday = target.monday;
    week.event = target.event;
    week.health = target.health;
    week.injurypart = target.injurypart;
    week.healthdes = target.healthdes;
    for (sessioninmicro_v5& session : week.sessions)
        shift(session, *to - *from);
    shift(week.testdata, *to - *from);
    return week;
}

std::size_t repeatBlock(std::span<microsplanning_v5> weeks, std::size_t first, std::size_t count,
                        std::size_t times) {
    if (first >= weeks.size() || count == 0 || count >= weeks.size() - first)
        return 0;
    const std::size_t room = weeks.size() - first - count;
    const std::size_t wanted = times > room / count ? room : times * count;
    std::size_t written = 0;
    for (std::size_t i = 0; i < wanted; ++i) {
        microsplanning_v5& target = weeks[first + count + i];
        if (auto copy = copiedWeek(weeks[first + i % count], target)) {
            target = std::move(*copy);
            ++written;
        }
    }
    return written;
}

} // namespace kavela
