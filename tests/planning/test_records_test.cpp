#include "planning/eight_test.h"
#include "planning/test_sections.h"
#include "planning/test_table.h"
#include "planning/test_texts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// Two laps of 10 and 6 seconds, a stroke every second from half a second on.
testData twoLaps() {
    testData test;
    test.athlete = "Lee; Ann";
    test.date = referenceDate(std::chrono::year_month_day{
        std::chrono::year{2026}, std::chrono::month{3}, std::chrono::day{9}});
    test.splits = {10, 6};
    test.totalTime = 16;
    test.straightTime = {7.5};
    for (int i = 0; i < 16; ++i) {
        test.strokeDate.push_back({test.date.seconds + 0.5 + i});
        test.strokeRate.push_back(60 + i);
        test.maxAcce.push_back(i % 10); // greatest at the end of a lap
    }
    test.leftRotations = {2.5, 1e21, 3, 4, 5, 6};
    return test;
}

} // namespace

TEST(TestTexts, AreSpeltAsTheyAlwaysWere) {
    EXPECT_EQ(
        lapTestDescription(6, 12.5),
        "The test consist in doing 6 laps around two gated separated by 12.5 meters. Athletes "
        "are told to start at maximum speed and keep it was long as they can until the time "
        "is up.");
}

TEST(TestSummary, TellsAverageAndChange) {
    const struct {
        std::vector<double> series;
        SummaryLabels labels;
        const char* text;
    } rows[] = {
        {{60, 63, 72},
         StrokeRateLabels,
         "Average strokerate: 65.00\nAverage increase: +6.00\nTotal increase: +12.00"},
        {{4, 3},
         AccelerationLabels,
         "Average acceleration: 3.50\nAverage variation: -1.00\nTotal variation: -1.00"},
        {{0.3, NotANumber, 0.4},
         WaterPhaseLabels,
         "Average water phase: 0.35\nVariation of the water phase: +0.10"},
        {{0.304, 0.3},
         AerialPhaseLabels,
         "Average aerial phase: 0.30\nVariation of the aerial phase: 0.00"},
        {{2}, RollLabels, "Average roll movement: 2.00"},
        {{}, WaterPhaseLabels, "Average water phase: -\nVariation of the water phase: -"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(summaryText(summaryOf(row.series), row.labels), row.text);
}

TEST(TestSections, ConsiderTheMiddleStrokesOfALap) {
    const std::vector<TestSection> laps = testSections(twoLaps());
    ASSERT_EQ(laps.size(), 2U);
    EXPECT_EQ(laps[0].strokeRate, 64.5) << "strokes 2 to 7 of 10";
    EXPECT_EQ(laps[0].maximumAcceleration, 7) << "the strokes of the turn are left out";
    EXPECT_EQ(laps[0].rotationTime, 2.5);
    EXPECT_EQ(laps[1].strokeRate, 72.5) << "strokes 1 to 4 of 6";
    EXPECT_EQ(laps[1].straightTime, std::nullopt);
    EXPECT_EQ(laps[1].roll, std::nullopt);
}

TEST(TestSections, TakeDatesAsTheyCome) {
    testData test = twoLaps();
    std::ranges::reverse(test.strokeDate);
    EXPECT_EQ(testSections(test)[0].strokeRate, std::nullopt) << "out of order";
    test = twoLaps();
    test.splits = {NotANumber, -5, 1e300};
    EXPECT_EQ(testSections(test).size(), 3U);
    test = twoLaps();
    test.strokeRate.resize(5);
    EXPECT_EQ(testSections(test)[0].strokeRate, 63) << "the series is shorter than its dates";
    test.strokeDate.assign(3, {NotANumber});
    EXPECT_EQ(testSections(test).size(), 2U);
}

TEST(TestTable, HasItsTitlesAndOneLinePerRun) {
    const std::string table = testTableCsv(std::vector{twoLaps()});
    const std::size_t second = table.find('\n') + 1;
    const std::size_t third = table.find('\n', second) + 1;
    EXPECT_EQ(table.substr(0, second),
              "Name;Date;Times (s);;;;;Total;Stroke rate (strokes/min);;;;;Stroke efficiency "
              "(m/stroke);;;;;Average speed (m/s);;;;;Max acce;;;;;Straight Time (s);;;;;Left "
              "Rotation peak;;;;;Left Rotation duration;;;;;Right Rotation peak;;;;;Right Rotation "
              "duration;;;;\n");
    const std::string names = table.substr(second, third - second);
    EXPECT_THAT(names, testing::StartsWith("Name;Date;Time 1;Time 2;Time 3;Time 4;Time 5;Total;"
                                           "Stroke rate 1;"));
    EXPECT_THAT(names, testing::EndsWith(";Right Rotation duration 5\n"));
    EXPECT_EQ(table.substr(third), "\"Lee; Ann\";2026-03-09;10;6;;;;16;64.5;72.5;;;;;;;;;;;;;;7;4;"
                                   ";;;7.5;;;;;2.5;1e+21;3;4;5;;;;;;;;;;;;;;;\n");
    for (const std::size_t line : {std::size_t{0}, second})
        EXPECT_EQ(std::count(table.begin() + static_cast<std::ptrdiff_t>(line),
                             table.begin() + static_cast<std::ptrdiff_t>(table.find('\n', line)),
                             ';'),
                  52);
}

TEST(EightTest, ScoresTimesAndTurns) {
    datafor8 run;
    run.sp1 = 10;
    run.sp2 = 12;
    run.sp3 = 11;
    run.sp4 = 12;
    run.sp5 = 10;
    run.zrotation = {0.2, 2, 3, 1, -0.4, 0.5, -1, -2, 1.5, 2.5, NotANumber, -1.2};
    scoreEightTest(run);
    EXPECT_EQ(run.totalsplit, 55);
    EXPECT_EQ(run.sdv, 1);
    EXPECT_THAT(run.zrotsubmaxL, ElementsAre(3, 2.5)) << "0.5 is but sway";
    EXPECT_THAT(run.zrotsubmaxR, ElementsAre(2, 1.2));
    EXPECT_THAT(turnPeaks({}, true), IsEmpty());
    EXPECT_THAT(turnPeaks(std::vector{0.0, NotANumber}, true), IsEmpty());
}

} // namespace kavela::test
