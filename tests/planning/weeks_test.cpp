#include "planning/week_totals.h"
#include "planning/weeks.h"

#include "common/json_encode.h"
#include "planning/plans.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

using namespace std::chrono;

using testing::ElementsAre;

std::vector<std::string> titles(const microsplanning_v5& week) {
    std::vector<std::string> titles;
    for (const sessioninmicro_v5& session : week.sessions)
        titles.push_back(session.titleanddes[0] + ' ' + std::to_string(session.dayPosition));
    return titles;
}

/// Two weeks from Monday 2026-03-09 on; the first with two sessions on Tuesday, one on Friday.
std::vector<microsplanning_v5> plan() {
    std::vector<microsplanning_v5> weeks = newSeason(day(2026, 3, 9), 4);
    weeks[0].sessions = {sessionOn(day(2026, 3, 10), "gates", {40, 0, 20}),
                         sessionOn(day(2026, 3, 10), "gym", {0, 0, 0, 0, 45.5}),
                         sessionOn(day(2026, 3, 13), "long", {90})};
    renumberDays(weeks[0]);
    weeks[0].testdata.water = {{midnightOf(day(2026, 3, 12)).seconds + 3600}};
    weeks[0].mesocycle = "Base";
    weeks[0].event = "Selection";
    weeks[1].event = "Cup";
    weeks[1].health = 3;
    return weeks;
}

} // namespace

TEST(CalendarDays, AreTheLocalOnesThatAMidnightStandsFor) {
    const double monday = midnightOf(day(2026, 3, 9)).seconds;
    for (const double zoneHours : {-11.5, -5.0, 0.0, 1.0, 11.5}) {
        microsplanning_v5 week;
        week.monday = {monday - zoneHours * 3600};
        EXPECT_EQ(mondayOf(week), day(2026, 3, 9)) << zoneHours;
    }
    for (const double oddDate :
         {monday + 86400, 1e300, -1e300, std::numeric_limits<double>::quiet_NaN(), 2.6e11}) {
        microsplanning_v5 week;
        week.monday = {oddDate};
        EXPECT_EQ(mondayOf(week), std::nullopt) << oddDate;
    }
    EXPECT_EQ(mondayOf(day(2026, 3, 9)), day(2026, 3, 9));
    EXPECT_EQ(mondayOf(day(2026, 3, 15)), day(2026, 3, 9));
    EXPECT_EQ(mondayOf(day(1999, 1, 1)), day(1998, 12, 28));
}

TEST(CalendarDays, OfASessionAreItsIntegersWhereTheyAreADate) {
    const struct {
        std::vector<std::int64_t> integers;
        sys_days expected;
    } rows[] = {
        {{2024, 2, 29}, day(2024, 2, 29)},
        {{2023, 2, 29}, day(2026, 3, 10)},
        {{2024, 13, 1}, day(2026, 3, 10)},
        {{10, 3, 2026}, day(2026, 3, 10)},
        {{2024, 3}, day(2026, 3, 10)},
        {{}, day(2026, 3, 10)},
        {{5'000'000'000, 1, 1}, day(2026, 3, 10)},
    };
    for (const auto& row : rows) {
        sessioninmicro_v5 session = sessionOn(day(2026, 3, 10), "");
        session.dateinInts = row.integers;
        EXPECT_EQ(dayOf(session), row.expected) << testing::PrintToString(row.integers);
    }
}

TEST(Weeks, OfASeasonFollowEachOther) {
    const auto weeks = newSeason(day(2026, 1, 1));
    ASSERT_EQ(weeks.size(), 52U);
    EXPECT_EQ(dayText(weeks[0].monday), "2025-12-29");
    EXPECT_EQ(weeks[0].number, 1);
    EXPECT_EQ(dayText(weeks[51].monday), "2026-12-21");
    EXPECT_EQ(weeks[51].number, 52);
    EXPECT_EQ(firstMondayOf(year(2026)), day(2025, 12, 29));
    EXPECT_EQ(firstMondayOf(year(2027)), day(2027, 1, 4));

    auto odd = newSeason(day(2026, 1, 1), 4);
    odd[1].monday.seconds += 86400;
    odd[3].monday.seconds = 1e300;
    EXPECT_THAT(weeksNotOnMonday(odd), ElementsAre(1, 3));
    EXPECT_EQ(weekOf(odd, day(2026, 1, 12)), 1U) << "a week is seven days from where it starts";
    EXPECT_EQ(weekOf(odd, day(2027, 1, 1)), std::nullopt);
}

TEST(Weeks, SessionsMoveByDays) {
    auto weeks = plan();
    EXPECT_EQ(moveSession(weeks, {0, 0}, day(2026, 3, 17)), (SessionPlace{1, 0}));
    EXPECT_THAT(titles(weeks[0]), ElementsAre("gym 0", "long 0"));
    const sessioninmicro_v5& moved = weeks[1].sessions.at(0);
    EXPECT_THAT(moved.dateinInts, ElementsAre(2026, 3, 17));
    EXPECT_THAT(moved.trainingtimeInt, ElementsAre(9, 30));
    EXPECT_EQ(moved.trainingtime.seconds, midnightOf(day(2026, 3, 17)).seconds + 8.5 * 3600);

    EXPECT_EQ(moveSession(weeks, {0, 1}, day(2026, 3, 10)), (SessionPlace{0, 1}));
    EXPECT_THAT(titles(weeks[0]), ElementsAre("gym 0", "long 1"));
    setTimeOfDay(weeks[0].sessions[1], hours(15));
    EXPECT_THAT(weeks[0].sessions[1].trainingtimeInt, ElementsAre(15, 0));
    EXPECT_EQ(weeks[0].sessions[1].trainingtime.seconds,
              midnightOf(day(2026, 3, 10)).seconds + 14 * 3600);
}

TEST(Weeks, WhatCannotBeMovedStays) {
    auto weeks = plan();
    weeks[0].sessions.push_back({});
    weeks[0].sessions.back().trainingtime = {1e300};
    const std::string before = encode(weeks);
    EXPECT_FALSE(moveSession(weeks, {0, 0}, day(2027, 3, 17))) << "no week of that day";
    EXPECT_FALSE(moveSession(weeks, {0, 9}, day(2026, 3, 17)));
    EXPECT_FALSE(moveSession(weeks, {9, 0}, day(2026, 3, 17)));
    EXPECT_FALSE(moveSession(weeks, {0, 3}, day(2026, 3, 17))) << "a session on no day";
    setTimeOfDay(weeks[0].sessions[0], hours(24));
    EXPECT_EQ(encode(weeks), before);
}

TEST(Weeks, CopyTheirPlanAndNotTheirCalendar) {
    const auto weeks = plan();
    const auto copy = copiedWeek(weeks[0], weeks[1]);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->number, 2);
    EXPECT_EQ(dayText(copy->monday), "2026-03-16");
    EXPECT_EQ(copy->event, "Cup");
    EXPECT_EQ(copy->health, 3);
    EXPECT_EQ(copy->mesocycle, "Base");
    EXPECT_EQ(copy->testdata.water[0].seconds, weeks[0].testdata.water[0].seconds + 7 * 86400);
    EXPECT_THAT(copy->sessions[2].dateinInts, ElementsAre(2026, 3, 20));
    EXPECT_EQ(dayText(copy->sessions[2].trainingtime), "2026-03-20");
    microsplanning_v5 nowhere;
    nowhere.monday = {1e300};
    EXPECT_FALSE(copiedWeek(weeks[0], nowhere));
    EXPECT_FALSE(copiedWeek(nowhere, weeks[0]));
}

TEST(Weeks, BlocksRepeatAsFarAsTheSeasonGoes) {
    const struct {
        std::size_t first, count, times, written;
        std::vector<std::string> places;
    } rows[] = {
        {0, 2, 1, 2, {"a", "b", "a", "b", "e"}},
        {0, 2, 2, 3, {"a", "b", "a", "b", "a"}},
        {1, 1, 2, 2, {"a", "b", "b", "b", "e"}},
        {0, 2, std::numeric_limits<std::size_t>::max(), 3, {"a", "b", "a", "b", "a"}},
        {0, 5, 1, 0, {"a", "b", "c", "d", "e"}},
        {4, 2, 1, 0, {"a", "b", "c", "d", "e"}},
        {0, 0, 3, 0, {"a", "b", "c", "d", "e"}},
        {9, 1, 1, 0, {"a", "b", "c", "d", "e"}},
        {1, std::numeric_limits<std::size_t>::max(), 1, 0, {"a", "b", "c", "d", "e"}},
    };
    for (const auto& row : rows) {
        auto weeks = newSeason(day(2026, 3, 9), 5);
        for (std::size_t i = 0; i < 5; ++i)
            weeks[i].place = std::string(1, static_cast<char>('a' + i));
        EXPECT_EQ(repeatBlock(weeks, row.first, row.count, row.times), row.written);
        std::vector<std::string> places;
        for (const microsplanning_v5& week : weeks)
            places.push_back(week.place);
        EXPECT_EQ(places, row.places);
        EXPECT_EQ(weeks[4].number, 5);
    }
}

TEST(WeekTotals, CompareSessionsWithThePlan) {
    microsplanning_v5 week = plan()[0];
    week.total = {1, 2};
    week.totalq = {100, 0, 0, 0, 0, 0, 0, 0, 7};
    const std::vector<CategoryTotal> totals = weekTotals(week);
    ASSERT_EQ(totals.size(), 9U) << "a category more than is known";
    EXPECT_EQ(totals[0].category, "Aerobic lipolytic");
    EXPECT_EQ(totals[0].sessions, 2);
    EXPECT_EQ(totals[0].quantity, 130);
    EXPECT_EQ(totals[0].difference(), 30);
    EXPECT_EQ(totals[0].percentDone(), 130);
    EXPECT_EQ(totals[1].plannedSessions, 2);
    EXPECT_EQ(totals[1].percentDone(), 0);
    EXPECT_EQ(totals[5].category, "Maximum Strenght Capacity");
    EXPECT_EQ(totals[8].category, "Category 9");
    EXPECT_EQ(totals[8].plannedQuantity, 7);

    planAsInSessions(week);
    EXPECT_THAT(week.total, ElementsAre(2, 0, 1, 0, 1, 0, 0, 0, 0));
    EXPECT_THAT(week.totalq, ElementsAre(130, 0, 20, 0, 45.5, 0, 0, 0, 0));
}

TEST(WeekTotals, AddUpOverWeeks) {
    auto weeks = plan();
    weeks[1].sessions = weeks[0].sessions;
    weeks[1].totalq = {0, 0, 0, 0, 0, 0, 0, 0, 3};
    weeks[0].total = {std::numeric_limits<std::int64_t>::max()};
    weeks[1].total = {5};
    const std::vector<CategoryTotal> totals = totalsOf(weeks);
    ASSERT_EQ(totals.size(), 9U);
    EXPECT_EQ(totals[4].quantity, 91);
    EXPECT_EQ(totals[4].sessions, 2);
    EXPECT_EQ(totals[0].plannedSessions, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(totals[8].plannedQuantity, 3);
    EXPECT_EQ(totalsOf({}).size(), 8U);
}

} // namespace kavela::test
