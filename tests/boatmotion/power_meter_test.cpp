#include "boatmotion/power_meter.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<double> timesOf(const std::vector<powermeterData>& samples) {
    std::vector<double> times;
    for (const powermeterData& sample : samples)
        times.push_back(sample.dateDouble);
    return times;
}

constexpr double Midnight = 799977600; // of a day in May 2026

/// Strokes of a second each at 1000, 1001 ... on a clock that starts 10,000 s after midnight.
EditedSession strokes(int count) {
    EditedSession session;
    session.clockOffset = Midnight + 10000;
    session.session.info.date = {Midnight + 11000};
    for (int i = 0; i < count; ++i) {
        smartBMdata_v4 entry;
        entry.timestamp = 1000 + i;
        entry.stroke.strokeRate = 60;
        entry.stroke.power = 7;
        session.session.strokesData.push_back(entry);
    }
    return session;
}

} // namespace

TEST(PowerMeter, ReadsListsAsProgramsWriteThem) {
    const struct {
        const char* name;
        const char* text;
        std::vector<double> times;
        double lastPower;
    } cases[] = {
        {"semicolons and decimal commas",
         "Time (s);Power (W)\n0,5;100,5\n1,5;110\n",
         {0.5, 1.5},
         110},
        {"commas", "secs,watts\n0,100\n1,120.5\n", {0, 1}, 120.5},
        {"tabs, quotes, other columns",
         "\"Cadence\"\t\"TIME\"\t\"Power\"\r\n80\t0:01:02.5\t\"90\"\r\n",
         {62.5},
         90},
        {"minutes and seconds, no line end", "time;power\n59:30;1\n60:30;2", {3570, 3630}, 2},
        {"blank lines", "time;power\n\n1;5\n\n", {1}, 5},
    };
    for (const auto& row : cases) {
        const PowerMeterList list = parsePowerMeter(row.text);
        EXPECT_EQ(timesOf(list.samples), row.times) << row.name;
        EXPECT_THAT(list.refused, IsEmpty()) << row.name;
        if (!list.samples.empty()) {
            EXPECT_EQ(list.samples.back().power, row.lastPower) << row.name;
        }
    }
}

TEST(PowerMeter, RefusesLinesWithTheirReasons) {
    const PowerMeterList list = parsePowerMeter("Time;Power;HR\n"
                                                "0;100;150\n"
                                                "x;100;150\n"
                                                "1;-5;150\n"
                                                "2;100;900\n"
                                                "0;100;\n"
                                                "0:75;100;\n"
                                                "3\n"
                                                "1e400;100;\n"
                                                "4;99999;\n"
                                                "5;200;\n");
    EXPECT_THAT(timesOf(list.samples), ElementsAre(0, 5));
    EXPECT_EQ(list.samples[0].hr, 150);
    EXPECT_EQ(list.samples[1].hr, 0);
    std::vector<std::size_t> lines;
    for (const RefusedLine& refused : list.refused)
        lines.push_back(refused.line);
    EXPECT_THAT(lines, ElementsAre(3, 4, 5, 6, 7, 8, 9, 10));
    EXPECT_THAT(list.refused[3].reason, HasSubstr("not later"));
    EXPECT_THAT(parsePowerMeter("a;b\n1;2\n").refused, SizeIs(1)) << "no such columns";
    EXPECT_THAT(parsePowerMeter("").samples, IsEmpty());
}

TEST(PowerMeter, PlacesTimesOnTheClockOfTheSession) {
    const EditedSession session = strokes(10);
    const struct {
        const char* text;
        double first;
    } cases[] = {
        {"time;power\n5;1\n6;1\n", 1000},               // runs from its own start
        {"time;power\n799988602;1\n", 1002},            // a date
        {"time;power\n1778295803;1\n", 1003},           // seconds since 1970
        {"time;power\n03:03:24;1\n", 1004},             // 11004 s after midnight
        {"time;power\n12:00:00;1\n12:00:01;1\n", 1000}, // another zone's time of day
    };
    for (const auto& row : cases)
        EXPECT_EQ(placedInSession(parsePowerMeter(row.text), session).at(0).dateDouble, row.first)
            << row.text;
    EXPECT_THAT(placedInSession({}, session), IsEmpty());
}

TEST(PowerMeter, GivesStrokesThePowerOfTheirCycle) {
    EditedSession session = strokes(6);
    session.session.heart = {{{Midnight + 11001}, 120}};
    session.powerMeter = {{1000.0, 100, 0},
                          {1000.5, 200, 0},
                          {1001.0, 300, 130},
                          {1003.0, 500, 131},
                          {1008.0, 900, 132}};
    EXPECT_EQ(applyPowerMeter(session), 4U);
    std::vector<double> powers;
    for (const smartBMdata_v4& entry : session.session.strokesData)
        powers.push_back(entry.stroke.power);
    EXPECT_THAT(powers, ElementsAre(150, 300, 450, 500, 7, 7))
        << "the mean, one sample, between two near ones, then too far apart";
    ASSERT_THAT(session.session.heart, SizeIs(2)) << "only where no reading was within 5 s";
    EXPECT_EQ(session.session.heart[1].hr, 132);
    EXPECT_EQ(session.session.heart[1].date.seconds, Midnight + 11008);
    EXPECT_THAT(session.powerMeter, IsEmpty());
}

} // namespace kavela::test
