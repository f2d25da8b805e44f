#include "planning/calendar_day.h"
#include "planning/day_parts.h"
#include "planning/weeks.h"

#include <gtest/gtest.h>

using namespace kavela;
using namespace std::chrono_literals;

namespace {

sessioninmicro_v5 sessionOn(std::int64_t day, std::vector<std::int64_t> time,
                            std::int64_t position = 0) {
    sessioninmicro_v5 session;
    session.dateinInts = {2026, 3, day};
    session.trainingtimeInt = std::move(time);
    session.dayPosition = position;
    return session;
}

} // namespace

TEST(DayParts, PutSessionsWhereTheirDayAndHourAre) {
    microsplanning_v5 week = newSeason(2026y / 3 / 9, 1).front();
    week.sessions = {sessionOn(9, {11, 59}), sessionOn(9, {12, 0}), sessionOn(9, {17, 0}),
                     sessionOn(15, {}),      sessionOn(9, {9, 30}), sessionOn(16, {9, 0}),
                     sessionOn(31, {25, 0})};
    const WeekSessions sorted = sessionsByDay(week);
    EXPECT_EQ(sorted.at(0, DayPart::Morning), (std::vector<std::size_t>{4, 0}));
    EXPECT_EQ(sorted.at(0, DayPart::Afternoon), std::vector<std::size_t>{1});
    EXPECT_EQ(sorted.at(0, DayPart::Evening), std::vector<std::size_t>{2});
    EXPECT_EQ(sorted.at(6, DayPart::AnyTime), std::vector<std::size_t>{3});
    EXPECT_EQ(sorted.elsewhere, (std::vector<std::size_t>{5, 6}));
}

TEST(DayParts, KeepEverySessionOfAWeekThatIsInNoCalendar) {
    microsplanning_v5 week;
    week.monday.seconds = 1e300;
    week.sessions = {sessionOn(9, {9, 0}), {}};
    EXPECT_EQ(sessionsByDay(week).elsewhere.size(), 2U);
}
