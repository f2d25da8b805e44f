#include "planning/calendar_text.h"
#include "planning/heart_trend.h"
#include "planning/season_statistics.h"
#include "planning/variability_import.h"

#include "planning/plans.h"

#include <gmock/gmock.h>

#include <limits>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

athletedata031 run(std::vector<std::string> names, std::vector<double> times, std::int64_t pen) {
    athletedata031 run;
    run.names = std::move(names);
    run.cat = "K1W";
    run.phase = "Final";
    run.sectioninfo.times = std::move(times);
    for (const double time : run.sectioninfo.times)
        run.sectioninfo.totaltime += time;
    run.sectioninfo.totalpen = pen;
    run.totaltouches = pen / 2;
    return run;
}

splittakerdata031 session(const char* kind, std::chrono::sys_days on) {
    splittakerdata031 file;
    file.info.session = kind;
    file.info.title = "Cup";
    file.info.gates = 3;
    file.info.date = midnightOf(on);
    file.athletes = {run({"Elliot ZÉA"}, {20, 0, 33}, 2), run({"Bea Ray"}, {22, 30, 30}, 0),
                     run({"Ann Lee", "Zea, Elliot"}, {21, 30, 0}, 4)};
    file.athletes[0].sectioninfo.realtime = 84.5;
    file.athletes[0].sectioninfo.realpen = 4;
    file.athletes[0].sectioninfo.pens = {0, 2, 0};
    file.athletes[0].sectioninfo.pendetails.resize(1);
    file.athletes[0].sectioninfo.pendetails[0].gate = {2};
    file.athletes[2].cat = "C2X";
    return file;
}

std::vector<DailyValue> days(std::chrono::sys_days first, const std::vector<double>& values) {
    std::vector<DailyValue> series;
    for (std::size_t i = 0; i < values.size(); ++i)
        series.push_back(
            {{midnightOf(first).seconds + 86400 * static_cast<double>(i) + 25200}, values[i]});
    return series;
}

} // namespace

TEST(SeasonStatistics, AreThoseOfOneAthlete) {
    const statisticsplanning_v3 found =
        seasonStatistics("elliot zea", std::vector{session("Race", day(2026, 5, 2)),
                                                   session("Training", day(2026, 4, 1))});
    const racedataplanning_v3& races = found.racedata;
    ASSERT_THAT(races.date, SizeIs(2)) << "alone and in a crew";
    EXPECT_EQ(races.event[0], "Cup");
    EXPECT_EQ(races.time[0], 84.5);
    EXPECT_EQ(races.timePen[0], 4);
    EXPECT_EQ(races.bestTime[0], 82);
    EXPECT_EQ(races.bestTimePen[0], 0);
    EXPECT_THAT(races.percentajes[0], ElementsAre(0, 0, testing::DoubleNear(10, 1e-9)));
    EXPECT_THAT(races.penalties[0], ElementsAre(0, 2, 0));
    EXPECT_THAT(races.pendetails[0].at(0).gate, ElementsAre(2));
    EXPECT_EQ(races.time[1], 51);
    EXPECT_EQ(races.bestTime[1], 51) << "against its own category";
    EXPECT_THAT(found.pendata.session, ElementsAre("Training", "Training", "Race", "Race"));
    EXPECT_THAT(found.pendata.touches, ElementsAre(1, 2, 1, 2));
    EXPECT_THAT(
        seasonStatistics("Elliot", std::vector{session("Race", day(2026, 5, 2))}).pendata.date,
        SizeIs(0));
}

TEST(SeasonStatistics, SumUpPenalties) {
    penaltydataplanning_v1 penalties;
    penalties.touches = {0, 2, 1};
    penalties.fifties = {0, 1};
    penalties.gates = {std::numeric_limits<std::int64_t>::max(), 20};
    const PenaltySummary summary = penaltySummary(penalties);
    EXPECT_EQ(summary.runs, 3);
    EXPECT_EQ(summary.cleanRuns, 1);
    EXPECT_EQ(summary.touchesPerRun(), 1);
    EXPECT_EQ(summary.gates, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(penaltySummary({}).fiftiesPerRun(), 0);
}

TEST(HeartTrend, ComparesAWeekWithWhatIsUsual) {
    std::vector<double> values;
    for (int i = 0; i < 28; ++i)
        values.push_back(i % 2 == 0 ? 48 : 52);
    values.insert(values.end(), 7, 60);
    const std::vector<TrendDay> trend = heartTrend(days(day(2026, 1, 1), values));
    ASSERT_EQ(trend.size(), 35U);
    EXPECT_EQ(trend[0].weekMean, 48);
    EXPECT_EQ(trend[0].standing, AgainstUsual::Unknown);
    EXPECT_FALSE(trend[12].usual) << "six days before the week";
    ASSERT_TRUE(trend[13].usual);
    EXPECT_EQ(trend[13].standing, AgainstUsual::Within);
    EXPECT_EQ(dayText(trend[34].date), "2026-02-04");
    EXPECT_EQ(trend[34].weekMean, 60);
    EXPECT_NEAR(trend[34].usual->low, 50 - 2.0367, 1e-4);
    EXPECT_NEAR(trend[34].usual->high, 50 + 2.0367, 1e-4);
    EXPECT_EQ(trend[34].standing, AgainstUsual::Above);
}

TEST(HeartTrend, TakesMeasurementsAsTheyCome) {
    std::vector<DailyValue> values = days(day(2026, 1, 5), {50, 60});
    values.push_back({{values[0].date.seconds + 600}, 54});
    values.push_back({{1e300}, 99});
    std::swap(values[0], values[1]);
    const std::vector<TrendDay> trend = heartTrend(values);
    ASSERT_EQ(trend.size(), 2U);
    EXPECT_EQ(trend[0].value, 52) << "two measurements of a day";
    EXPECT_EQ(trend[1].weekMean, 56);
    EXPECT_TRUE(heartTrend({}).empty());

    const std::vector<variabilitydataplanning_v2> measured{{{1}, 900, 0, 60, 0, 0, 0},
                                                           {{2}, 0, 0, 0, 0, 0, 0}};
    EXPECT_THAT(variabilitySeries(measured, &variabilitydataplanning_v2::rMSSD), SizeIs(1));
    EXPECT_THAT(restingSeries(std::vector<restingdataplanning_v1>{{{1}, -4}, {{2}, 0}, {{3}, 47}}),
                SizeIs(1));
}

TEST(VariabilityImport, ReadsColumnsByName) {
    const VariabilityList list = parseVariability("rmssd,DATE,note,\"LF\"\r\n"
                                                  "61.5, 2026-03-09 ,woke early,1200\r\n"
                                                  "\r\n"
                                                  "62,2026-03-10T07:30,,\n"
                                                  ",2026-03-11 07:30:15,,8e2");
    EXPECT_THAT(list.skipped, SizeIs(0));
    ASSERT_THAT(list.measurements, SizeIs(3));
    EXPECT_EQ(list.measurements[0].rMSSD, 61.5);
    EXPECT_EQ(list.measurements[0].LF, 1200);
    EXPECT_EQ(list.measurements[0].date, midnightOf(day(2026, 3, 9)));
    EXPECT_EQ(list.measurements[1].date.seconds, midnightOf(day(2026, 3, 10)).seconds + 27000);
    EXPECT_EQ(list.measurements[2].LF, 800);
    EXPECT_EQ(list.measurements[2].AVNN, 0);
}

TEST(VariabilityImport, SaysWhichLinesItSkipsAndWhy) {
    const struct {
        const char* line;
        const char* reason;
    } rows[] = {
        {"2026-02-29;900", "the date \"2026-02-29\" is no date such as 2026-03-09"},
        {"9.3.2026;900", "the date \"9.3.2026\" is no date such as 2026-03-09"},
        {"2026-03-09 25:00;900", "the date \"2026-03-09 25:00\" is no date such as 2026-03-09"},
        {"2026-03-09x;900", "the date \"2026-03-09x\" is no date such as 2026-03-09"},
        {";900", "the date \"\" is no date such as 2026-03-09"},
        {"2026-03-09;900,5", "the AVNN \"900,5\" is no measured number"},
        {"2026-03-09;-3", "the AVNN \"-3\" is no measured number"},
        {"2026-03-09;nan", "the AVNN \"nan\" is no measured number"},
        {"2026-03-09;1e400", "the AVNN \"1e400\" is no measured number"},
        {"2026-03-09;", "there is no value in it"},
        {"2026-03-09", "there is no value in it"},
    };
    for (const auto& row : rows) {
        const VariabilityList list =
            parseVariability(std::string("Date;AVNN\n") + row.line + "\n2026-03-10;901\n");
        EXPECT_THAT(list.measurements, SizeIs(1));
        ASSERT_THAT(list.skipped, SizeIs(1)) << row.line;
        EXPECT_EQ(list.skipped[0].line, 2);
        EXPECT_EQ(list.skipped[0].reason, row.reason);
    }
    for (const auto& [header, reason] :
         {std::pair{"", "the header names no column Date"},
          {"AVNN;SDNN\n1;2", "the header names no column Date"},
          {"Date;Weight\n2026-03-09;70",
           "the header names none of AVNN, SDNN, rMSSD, pNN50, LF and HF"}}) {
        const VariabilityList list = parseVariability(header);
        EXPECT_THAT(list.measurements, SizeIs(0));
        ASSERT_THAT(list.skipped, SizeIs(1));
        EXPECT_EQ(list.skipped[0].reason, reason);
    }
}

TEST(VariabilityImport, AddsWhatIsNew) {
    std::vector<variabilitydataplanning_v2> present{{{10}, 1, 0, 0, 0, 0, 0},
                                                    {{30}, 3, 0, 0, 0, 0, 0}};
    EXPECT_EQ(addMeasurements(
                  present,
                  {{{40}, 4, 0, 0, 0, 0, 0}, {{20}, 2, 0, 0, 0, 0, 0}, {{30}, 9, 0, 0, 0, 0, 0}}),
              2U);
    std::vector<double> values;
    for (const variabilitydataplanning_v2& measurement : present)
        values.push_back(measurement.AVNN);
    EXPECT_THAT(values, ElementsAre(1, 2, 3, 4));
}

TEST(WeekCalendar, TellsASessionToATelephone) {
    athletesplanning_v6 athlete;
    athlete.name = "Ann";
    microsplanning_v5 week;
    week.sessions = {sessionOn(day(2026, 3, 10), "Gates; short", {0, 12.5})};
    week.sessions[0].titleanddes[1] = "ten, by\none";
    week.sessions[0].trainingplace = "Home water";
    const std::string text =
        weekCalendar(athlete, week, {}, {midnightOf(day(2026, 3, 8)).seconds + 3723.5});
    EXPECT_THAT(text, testing::StartsWith("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n"));
    EXPECT_THAT(text, HasSubstr("BEGIN:VEVENT\r\nUID:20260310-0-"));
    EXPECT_THAT(text, HasSubstr("DTSTAMP:20260308T010200Z\r\n"
                                "DTSTART:20260310T093000\r\nDTEND:20260310T103000\r\n"
                                "SUMMARY:Gates\\; short\r\nLOCATION:Home water\r\n"
                                "DESCRIPTION:ten\\, by\\none\\nAerobic glucolytic: "
                                "12.5\r\nEND:VEVENT\r\n"));
    EXPECT_THAT(text, testing::EndsWith("END:VCALENDAR\r\n"));
}

TEST(WeekCalendar, ASessionLastsAsLongAsItIsPlanned) {
    favInvervalSessions_v2 gates;
    gates.title = "Gates Šprint";
    gates.sets = 3;
    gates.setrest = 240;
    gates.reps = 6;
    gates.worktime = 45;
    gates.workrest = 75; // 40.25 minutes in all
    const struct {
        const char* title;
        const char* description;
        const char* end;
    } rows[] = {
        {"Long", "90 min", "T1100"},
        {"Long", "quiet water\n1 h 30 min\nhome", "T1100"},
        {"Long", "1:45 h", "T1115"},
        {"Long", "Duration: 2,5 h\n20 min", "T1200"},
        {"Long", "2h", "T1130"},
        {"Parts", "20 min\ngates\n40 min", "T1030"}, // of parts, not of the whole
        {"Parts", "3x10 min", "T1030"},
        {"Long", "0 min", "T1030"},
        {"Long", "9999999999999999999999 min", "T1030"},
        {"gates sprint", "", "T1011"},
        {"gates sprint", "50 min", "T1020"},
    };
    for (const auto& row : rows) {
        microsplanning_v5 week;
        week.sessions = {sessionOn(day(2026, 3, 10), row.title)};
        week.sessions[0].titleanddes[1] = row.description;
        EXPECT_THAT(weekCalendar({}, week, std::vector{gates}, {}),
                    HasSubstr(std::string("DTEND:20260310") + row.end + "00\r\n"))
            << row.title << ": " << row.description;
    }
}

TEST(WeekCalendar, TakesSessionsAsTheyCome) {
    microsplanning_v5 week;
    week.sessions = {
        sessionOn(day(2026, 3, 10), std::string(100, 'x') + "é" + std::string(90, 'y')),
        sessionOn(day(2026, 3, 31), "late"),
        {},
        {}};
    week.sessions[0].trainingtimeInt = {25, 0};
    week.sessions[1].trainingtimeInt = {23, 30};
    week.sessions[2].trainingtime = {1e300};
    week.sessions[3].titleanddes = {"bad \xC9 bytes\rBEGIN:VEVENT"};
    const std::string text = weekCalendar({}, week, {}, {1e300});
    EXPECT_THAT(text, HasSubstr("DTSTART;VALUE=DATE:20260310\r\nSUMMARY:xxx"));
    EXPECT_THAT(text, HasSubstr("DTSTART:20260331T233000\r\nDTEND:20260401T003000\r\n"));
    EXPECT_THAT(text, HasSubstr("SUMMARY:bad \xEF\xBF\xBD bytesBEGIN:VEVENT\r\n"));
    std::size_t longest = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        longest = std::max(longest, end - at);
        at = end + 2;
    }
    EXPECT_LE(longest, 75U);
    std::string unfolded = text;
    for (std::size_t at = 0; (at = unfolded.find("\r\n ")) != std::string::npos;)
        unfolded.erase(at, 3);
    EXPECT_THAT(unfolded, HasSubstr(std::string(100, 'x') + "é" + std::string(90, 'y') + "\r\n"));
}

} // namespace kavela::test
