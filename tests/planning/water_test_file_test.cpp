#include "planning/water_test_file.h"

#include "common/json_encode.h"
#include "common/temp_folder.h"
#include "planning/test_entry.h"
#include "planning/test_from_motion.h"
#include "planning/test_from_run.h"
#include "planning/test_oddities.h"
#include "planning/test_sections.h"
#include "planning/test_table.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::DoubleEq;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pointwise;

/// Five laps around gates 12.5 m apart, the first in 10 s with 75 strokes a minute.
onWaterTest typedTest() {
    onWaterTest test;
    test.test.athlete = "LEE Ann";
    test.test.date = {7e8};
    enterSections(test, {{10, 6, 0, 75, 0}, {12.5, 7, 0, 0, 0}, {}, {}, {}});
    return test;
}

athletedata031 timedRun() {
    athletedata031 run;
    run.names = {"LEE Ann", "OAK Bo"};
    run.cat = "C2X";
    run.phase = "Run 2";
    run.videoname = {"run2.mp4", "side.mp4"};
    run.sectioninfo.times = {10, 11, 0, 12, 13, 99};
    for (std::int64_t split = 1; split <= 6; ++split)
        run.sectioninfo.cmtimes.push_back({CMTime{split * 1000, 90, 1, 0}, CMTime{7, 30, 1, 0}});
    for (const double rate : {0.1, 2.5, 1.0, -0.3, -2.0, 0.2}) {
        boatmotionrawdata_v5 sample;
        sample.timestamp = 500 + static_cast<double>(run.bm.size()) / 2;
        sample.rotationRate.z = rate;
        run.bm.push_back(sample);
    }
    run.gps.push_back({{7.1e8}, 2, 0, 0});
    return run;
}

Turn turn(double start, double end, double angle) {
    Turn made;
    made.start = start;
    made.end = end;
    made.peak = (start + end) / 2;
    made.angle = angle;
    made.values.rotationTime = end - start;
    made.values.rotSpeedPeak = 2.5;
    return made;
}

/// Twenty strokes, one a second from 0.5 s on, and four turns by turns to the left and the right.
MotionAnalysis paddledMotion(bool hasSpeed) {
    MotionAnalysis motion;
    motion.hasSpeed = hasSpeed;
    motion.clockOffset = 7e8;
    for (int i = 0; i <= 1000; ++i) {
        motion.series.time.push_back(i / 50.0);
        motion.series.speed.push_back(hasSpeed ? 2 : 0);
        motion.series.force.push_back(i % 50);
        motion.series.forward.push_back(-(i % 50) / 10.0);
        motion.series.yawRate.push_back(0);
        motion.series.valid.push_back(1);
    }
    for (int i = 0; i < 20; ++i) {
        Stroke stroke;
        stroke.catchTime = 0.5 + i;
        stroke.exitTime = 1.1 + i;
        stroke.cycle = 1;
        stroke.values.maxAcce = i;
        motion.strokes.push_back(stroke);
        motion.strokeRates.push_back(60 + i);
    }
    motion.turns = {turn(4, 6, 3), turn(9, 11, -3), turn(14, 16, 3), turn(18, 19, -3)};
    return motion;
}

TEST(TestEntry, WhatFollowsFromOtherValuesGoesOnFollowingUntilItIsTyped) {
    onWaterTest test = typedTest();
    EXPECT_THAT(test.test.splits, ElementsAre(10, 12.5));
    EXPECT_EQ(test.test.totalTime, 22.5);
    EXPECT_THAT(test.test.aveSpeed, ElementsAre(2.5, 2)) << "there and back, 25 m";
    EXPECT_THAT(test.test.strokeEfficiency, ElementsAre(2)) << "60 / 75 of 2.5 m";
    std::vector<SectionEntry> sections = sectionEntries(test);
    sections[0].time = 20;
    enterSections(test, sections);
    EXPECT_THAT(test.test.aveSpeed, ElementsAre(1.25, 2));
    EXPECT_THAT(test.test.strokeEfficiency, ElementsAre(1));
    sections = sectionEntries(test);
    sections[0].speed = 1.3;
    sections[1].strokeRate = 60;
    enterSections(test, sections);
    setDistance(test, 25);
    EXPECT_THAT(test.test.aveSpeed, ElementsAre(1.3, 4)) << "only the second one follows";
    EXPECT_THAT(test.test.strokeEfficiency, Pointwise(DoubleEq(), {1.04, 4.0}));
    EXPECT_EQ(testSections(test.test)[1].strokeRate, 60) << "the stroke lies in its lap";
}

TEST(TestEntry, StrokesMoveWithTheirTest) {
    onWaterTest test = typedTest();
    moveTo(test.test, {8e8});
    EXPECT_EQ(testSections(test.test)[0].strokeRate, 75);
    EXPECT_EQ(test.test.strokeDate[0].seconds, 8e8 + 5);
}

TEST(TestEntry, WhatStrokesToldIsNotTypedOver) {
    const std::vector<double> marks{4, 12, 20};
    onWaterTest test = testFromMotion({}, paddledMotion(true), 0, std::span(marks));
    const auto strokes = test.test.strokeDate;
    std::vector<SectionEntry> sections = sectionEntries(test);
    sections[0] = {5, 4, 3, 99, 9};
    enterSections(test, sections);
    EXPECT_EQ(test.test.strokeDate, strokes);
    EXPECT_EQ(test.test.splits[0], 5);
}

TEST(TestFiles, KeepEveryMember) {
    const TempFolder folder;
    onWaterTests tests{{typedTest()}, {{{7e8}, "Home", {}}}};
    tests.tests[0].test.impulses = {1.5};
    tests.tests[0].test.speedDate = {{7e8}};
    tests.eights[0].run.videotimes3 = {9, 30, 1, 0};
    tests.eights[0].run.zrotsubmaxL = {2.5};
    saveTestsFile(tests, folder.path() / "a.kvtest");
    EXPECT_EQ(encode(readTestsFile(folder.path() / "a.kvtest")), encode(tests));
    const auto other = recogniseTests(JsonDocument::fromText(R"({"tests":[{}],"eights":[]})"));
    EXPECT_FALSE(other.tests);
    EXPECT_EQ(other.failure->fault.path, "tests[0].kind");
}

TEST(TestFromRun, AnEightHasItsMarksItsMotionAndItsScore) {
    infodata031 info;
    info.date = {7e8};
    info.place = "Home";
    const onWaterEight eight = eightFromRun(info, timedRun(), "/films");
    EXPECT_EQ(eight.run.athlete, "LEE Ann / OAK Bo");
    EXPECT_THAT(splitsOf(eight.run), ElementsAre(10, 11, 0, 12, 13)) << "0 was not timed";
    EXPECT_EQ(eight.run.totalsplit, 46);
    EXPECT_EQ(eight.run.videotimes1, (CMTime{1000, 90, 1, 0}));
    EXPECT_EQ(eight.run.videotimes5, (CMTime{5000, 90, 1, 0}));
    EXPECT_EQ(eight.run.videoname, "run2.mp4");
    EXPECT_EQ(eight.run.videourl, "/films/run2.mp4");
    EXPECT_EQ(eight.run.date[0].seconds, 7.1e8) << "the first fix dates the samples";
    EXPECT_EQ(eight.run.date[5].seconds, 7.1e8 + 2.5);
    EXPECT_THAT(eight.run.zrotsubmaxL, ElementsAre(2.5));
    EXPECT_THAT(eight.run.zrotsubmaxR, ElementsAre(2));
    EXPECT_THAT(splitsOf(eightFromRun(info, {}, "").run), ElementsAre(0, 0, 0, 0, 0));
}

TEST(TestFromMotion, TellsEverySeriesByItsSections) {
    const std::vector<double> marks{8, 20};
    onWaterTest setUp;
    setUp.test.athlete = "LEE Ann";
    const onWaterTest test = testFromMotion(setUp, paddledMotion(true), 0, std::span(marks));
    EXPECT_EQ(test.laps, 2);
    EXPECT_THAT(test.test.splits, ElementsAre(8, 12));
    EXPECT_THAT(test.test.straightTime, ElementsAre(6, 7)) << "the rest is turned";
    EXPECT_THAT(test.test.aveSpeed, ElementsAre(2, 2));
    EXPECT_EQ(test.test.strokeDate.size(), 20U);
    EXPECT_EQ(test.test.strokeDate[0].seconds, 7e8 + 0.5);
    EXPECT_EQ(testSections(test.test)[0].strokeRate, 63.5) << "strokes 2 to 5 of 8";
    EXPECT_EQ(test.test.maxForce[0], 49);
    EXPECT_THAT(test.test.maxAcceNeg[0], DoubleNear(-4.9, 1e-9));
    EXPECT_THAT(test.test.leftRotationsTime, ElementsAre(2, 2));
    EXPECT_THAT(test.test.rightRotationsTime, ElementsAre(2, 1));
    EXPECT_EQ(test.test.speed.size(), test.test.speedDate.size());
    EXPECT_THAT(odditiesOf(test.test), IsEmpty());
    const auto blind = testFromMotion(setUp, paddledMotion(false), 0, std::span(marks));
    EXPECT_EQ(blind.test.maxForce[0], 0) << "nothing tells the speed";
    EXPECT_THAT(blind.test.aveSpeed, ElementsAre(25.0 / 8, 25.0 / 12)) << "the gates tell it";
}

TEST(TestSuggestions, FollowStrokesAndTurns) {
    MotionAnalysis motion = paddledMotion(true);
    EXPECT_THAT(suggestedLaps(motion, 5), ElementsAre(0.5, 10, 18.5));
    EXPECT_THAT(suggestedLaps(motion, 1), ElementsAre(0.5, 10));
    EXPECT_THAT(suggestedEights(motion), ElementsAre(2.5, 12.5, 20));
    EXPECT_EQ(suggestedSprint(motion).size(), 6U) << "a short recording as a whole";
    motion.turns[2].angle = 3 * motion.turns[2].angle;
    EXPECT_THAT(suggestedEights(motion), ElementsAre(2.5, 12.5)) << "three times round is no eight";
    for (const auto& found : {suggestedLaps({}, 5), suggestedSprint({}), suggestedEights({})})
        EXPECT_THAT(found, IsEmpty());
}

TEST(TestOddities, AreToldAndNothingBreaks) {
    const struct {
        std::function<void(testStruct&)> damage;
        const char* told;
    } rows[] = {
        {[](testStruct& test) { test.splits.clear(); }, "No section is timed."},
        {[](testStruct& test) { test.splits[1] = 0; }, "1 of 2 sections are not timed."},
        {[](testStruct& test) { test.totalTime = 30; }, "The total of 30.00 s"},
        {[](testStruct& test) {
             test.waterPhase = {1, 2, 3};
         },
         "values in: water phase."},
        {[](testStruct& test) { test.speed = {1}; }, "0 moments of speed"},
        {[](testStruct& test) {
             test.strokeDate = {{2}, {1}};
         },
         "not in the order"},
    };
    for (const auto& row : rows) {
        testStruct test = typedTest().test;
        row.damage(test);
        EXPECT_THAT(odditiesOf(test), testing::Contains(HasSubstr(row.told))) << row.told;
        EXPECT_EQ(testTableCells(test).size(), testTableColumns().size());
    }
    EXPECT_THAT(odditiesOf(typedTest().test), IsEmpty());
}

TEST(TestTable, LeavesEmptyWhatWasNotEntered) {
    testData test;
    test.splits = {0, 5};
    const std::string table = testTableCsv(std::vector{test});
    EXPECT_THAT(table, HasSubstr("\n;2001-01-01;;5;;;;;;"));
}

} // namespace

} // namespace kavela::test
