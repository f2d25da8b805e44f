#include "report/planning_season_report.h"
#include "report/planning_week_report.h"

#include "planning/calendar_day.h"
#include "planning/weeks.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "report/wrapped_text.h"
#include "sample/planning.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

using namespace std::chrono;
using report::PagedReport;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

constexpr sys_days Monday{year(2026) / 6 / 29};

sessioninmicro_v5 sessionAt(int daysLater, std::vector<std::int64_t> time, std::string title) {
    sessioninmicro_v5 session;
    const year_month_day date(Monday + days(daysLater));
    session.dateinInts = {int(date.year()), unsigned(date.month()), unsigned(date.day())};
    session.trainingtimeInt = std::move(time);
    session.titleanddes = {std::move(title), "Easy start\nthen faster"};
    session.trainingplace = "Home water";
    session.data = {30, 0, 12.5};
    return session;
}

microsplanning_v5 emptyWeek() {
    return newSeason(Monday, 1).front();
}

class PlanningReports : public testing::Test {
protected:
    std::vector<std::string> pagesOf(const PagedReport& report) {
        writePdf(report, m_folder.path() / "report.pdf");
        return test::pagesOf(m_folder.path() / "report.pdf");
    }
    std::string textOf(const PagedReport& report) {
        std::string text;
        for (const std::string& page : pagesOf(report))
            text += page;
        return text;
    }

    TempFolder m_folder;
};

/// The column of a text in the line that it stands in.
std::size_t columnOf(const std::string& text, const std::string& sought) {
    const std::size_t at = text.find(sought);
    return at == std::string::npos ? at : at - (text.rfind('\n', at) + 1);
}

} // namespace

TEST_F(PlanningReports, AWeekTellsItsSessionsByPartOfTheDay) {
    microsplanning_v5 week = emptyWeek();
    week.event = "Harbour Night";
    week.watertest = "Lap test";
    week.goals = {"Arrive rested"};
    week.total = {2};
    week.sessions = {sessionAt(1, {17, 0}, "Late"), sessionAt(1, {16, 59}, "Noon"),
                     sessionAt(1, {11, 59}, "Early"), sessionAt(0, {}, "Stretching"),
                     sessionAt(9, {9, 0}, "Astray")};
    const auto pages = pagesOf(*report::planningWeekReport("TŮŇKOVÁ Eliška", week));
    ASSERT_THAT(pages, SizeIs(1));
    for (const char* text :
         {"TŮŇKOVÁ Eliška", "Week 1", "29 June – 5 July 2026", "Harbour Night", "Lap test",
          "Monday", "Sunday", "11:59 Early", "Any time", "Stretching", "Other days", "2026-07-08",
          "then faster", "30 Aerobic lipolytic", "Aerobic capacity", "Arrive rested", "Notes"})
        EXPECT_THAT(pages[0], HasSubstr(text));
    EXPECT_NEAR(double(columnOf(pages[0], "16:59 Noon")), double(columnOf(pages[0], "Afternoon")),
                3);
    EXPECT_NEAR(double(columnOf(pages[0], "17:00 Late")), double(columnOf(pages[0], "Evening")), 3);
}

TEST_F(PlanningReports, EverySessionOfAFullWeekIsOnAPage) {
    microsplanning_v5 week = emptyWeek();
    for (int i = 0; i < 200; ++i)
        week.sessions.push_back(sessionAt(i % 3, {i % 24, 0}, "Session" + std::to_string(i) + "."));
    const auto pages = pagesOf(*report::planningWeekReport("A", week));
    std::string text;
    for (const std::string& page : pages)
        text += page;
    for (int i = 0; i < 200; ++i)
        EXPECT_EQ(countOf(text, "Session" + std::to_string(i) + "."), 1U) << i;
    EXPECT_EQ(countOf(text, "Easy start"), 200U);
    EXPECT_THAT(text, HasSubstr("continued"));
    EXPECT_GT(pages.size(), 3U);
    EXPECT_LT(pages.size(), 40U);
}

TEST_F(PlanningReports, ASeasonListsAllItsWeeksOnce) {
    const planningdatac_v6 plan = sample::groupPlanning({});
    for (const std::size_t count : {0U, 1U, 52U, 53U, 80U}) {
        yearsplannings_v6 season = plan.athletes[0].year.back();
        const auto weeks = newSeason(Monday, count);
        season.micros.resize(std::min<std::size_t>(count, season.micros.size()));
        for (std::size_t i = season.micros.size(); i < count; ++i)
            season.micros.push_back(weeks[i]);
        for (std::size_t i = 0; i < count; ++i)
            season.micros[i].event = "Cup" + std::to_string(i) + ".";
        const std::string text = textOf(*report::planningSeasonReport("A", season));
        for (std::size_t i = 0; i < count; ++i)
            EXPECT_EQ(countOf(text, "Cup" + std::to_string(i) + "."), 1U) << i << " of " << count;
        EXPECT_THAT(text, HasSubstr("Training by category"));
        EXPECT_THAT(text, HasSubstr(season.seasonsubgoals[0][0]));
        EXPECT_EQ(countOf(text, "No week of this season"), count == 0 ? 1U : 0U);
    }
}

TEST_F(PlanningReports, SurviveWhateverAFileHolds) {
    const std::string wide(100000, 'W');
    microsplanning_v5 week = emptyWeek();
    EXPECT_THAT(pagesOf(*report::planningWeekReport("", {})), SizeIs(1));
    week.sessions = {sessionAt(0, {9, 0}, wide), sessionAt(0, {9, -1}, "\xff\n")};
    week.sessions[1].data = {std::numeric_limits<double>::infinity(), 1e308};
    week.sessions[1].data.resize(100000, 1);
    week.sessions[1].titleanddes = {};
    week.goals.assign(1000, wide);
    week.event = week.place = week.mesocycle = week.watertest = week.bloodtest = wide + "\xff";
    week.percentaje = std::numeric_limits<double>::quiet_NaN();
    week.total = {INT64_MIN, INT64_MAX};
    EXPECT_LT(pagesOf(*report::planningWeekReport(wide, week)).size(), 200U);
    microsplanning_v5 undated = emptyWeek();
    undated.monday = {1e300};
    undated.sessions = {sessionAt(0, {9, 0}, "Astray")};
    EXPECT_THAT(textOf(*report::planningWeekReport("A", undated)), HasSubstr("Astray"));
    yearsplannings_v6 season;
    season.micros.assign(3, week);
    season.micros[1].monday = {1e300};
    season.micros[2].percentaje = 1e308;
    season.seasonsubgoals = {{}, {wide, "", "\xff"}};
    season.seasonsubgoalsstatus = {{"x"}, {wide}};
    const auto pages = pagesOf(*report::planningSeasonReport(wide, season));
    EXPECT_LT(pages.size(), 20U);
    EXPECT_THAT(pages, Each(Not(HasSubstr("nan"))));
}

TEST_F(PlanningReports, WrappedLinesKeepEveryCharacterAndTheirWidth) {
    const report::Typeface typeface;
    const report::TextStyle style{8, false};
    const qreal width = 60 * report::Point;
    const std::string text = "Gates\n\nthen " + std::string(80, 'W') + " \xF0\x9F\x9B\xB6 back";
    QString together;
    for (const QString& line : report::wrappedLines(text, typeface, style, width)) {
        EXPECT_LE(typeface.width(line, style), width) << line.toStdString();
        together += line;
    }
    together.remove(' ');
    QString expected = QString::fromStdString(text);
    EXPECT_EQ(together, expected.remove(' ').remove('\n'));
}

} // namespace kavela::test
