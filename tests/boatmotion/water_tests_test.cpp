#include "boatmotion/strokes/water_tests.h"

#include "boatmotion/hand_made_recording.h"
#include "boatmotion/simulator.h"
#include "boatmotion/strokes/drag.h"
#include "boatmotion/strokes/segments.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr MotionProfile WaterProfile{.mount = Mount::TopToBow};
constexpr double Pi = std::numbers::pi;

/// Paddling with turns at moments, each of an angle within 3 s.
MotionAnalysis paddlingWithTurns(double seconds,
                                 const std::vector<std::pair<double, double>>& turns) {
    return analyseMotion(handMade(seconds,
                                  [&](double time) {
                                      HandMadeMotion motion = steadyPaddling(time);
                                      for (const auto& [at, angle] : turns)
                                          if (time > at && time < at + 3)
                                              motion.yawRate +=
                                                  2 * angle / 3 *
                                                  std::pow(std::sin(Pi * (time - at) / 3), 2);
                                      return motion;
                                  }),
                         WaterProfile);
}

} // namespace

TEST(WaterTests, LapsAreCutIntoTurnsAndStraights) {
    const MotionAnalysis analysis = paddlingWithTurns(60, {{15, Pi}, {35, -Pi}});
    ASSERT_THAT(analysis.turns, SizeIs(2));
    const double marks[] = {1050, 1005, 1030};
    const std::vector<Lap> laps = lapsBetween(analysis, marks);
    ASSERT_THAT(laps, SizeIs(2));
    const Lap& lap = laps.front();
    EXPECT_EQ(lap.figures.start, 1005);
    EXPECT_EQ(lap.figures.end, 1030);
    ASSERT_THAT(lap.parts, SizeIs(3));
    EXPECT_FALSE(lap.parts[0].isTurn);
    EXPECT_TRUE(lap.parts[1].isTurn);
    EXPECT_NEAR(lap.turning.seconds + lap.straight.seconds, 25, 1e-9);
    EXPECT_EQ(lap.turning.strokes + lap.straight.strokes, lap.figures.strokes);
    EXPECT_NEAR(static_cast<double>(lap.figures.strokes), 25 / 0.75, 2);
    EXPECT_NEAR(*lap.figures.distance, 75, 4);
    EXPECT_NEAR(lap.straight.strokeRate, 80, 2);
    EXPECT_NEAR(*lap.straight.power, 135, 15);
    EXPECT_THAT(lapsBetween(analysis, std::span(marks).first(1)), IsEmpty());
}

TEST(WaterTests, LineIsCrossedByFixes) {
    const MotionAnalysis analysis = paddlingWithTurns(60, {});
    // Up and down a river, past a line, and once beside it.
    std::vector<gpsrawdata> fixes;
    for (int i = 0; i < 40; ++i)
        fixes.push_back({{736500000.0 + i}, 3, 47 + 1e-5 * (i < 20 ? i : 40 - i), 8.00005});
    for (int i = 40; i < 60; ++i)
        fixes.push_back({{736500000.0 + i}, 3, 47 + 1e-5 * (i - 40), 8.01});
    const StartLine line{{47.000105, 8}, {47.000105, 8.0001}};
    EXPECT_THAT(lineCrossings(analysis, fixes, line),
                ElementsAre(DoubleNear(1010.5 - analysis.fixLag, 0.01),
                            DoubleNear(1029.5 - analysis.fixLag, 0.01)));
    fixes[10].latitude = 1e300;
    EXPECT_THAT(lineCrossings(analysis, fixes, line), SizeIs(2));
}

TEST(WaterTests, EightsArePairsOfOppositeTurns) {
    const MotionAnalysis analysis = paddlingWithTurns(
        100, {{10, 1.3 * Pi}, {20, -1.3 * Pi}, {40, Pi}, {50, Pi}, {60, -Pi / 3 * 1.2}, {75, -Pi}});
    const std::vector<Eight> eights = findEights(analysis);
    ASSERT_THAT(eights, SizeIs(1)) << "a short turn makes no eight";
    const Eight& eight = eights.front();
    EXPECT_EQ(eight.firstTurn, 0U);
    EXPECT_NEAR(eight.netHeading, 0, 0.2);
    EXPECT_TRUE(eight.isWhole);
    EXPECT_NEAR(eight.figures.end, (analysis.turns[1].end + analysis.turns[2].start) / 2, 1e-9)
        << "in the middle of the straight";
    const auto uneven = findEights(paddlingWithTurns(60, {{15, 1.7 * Pi}, {30, -0.8 * Pi}}));
    ASSERT_THAT(uneven, SizeIs(1));
    EXPECT_FALSE(uneven.front().isWhole);
}

TEST(WaterTests, SprintIsTheHardestHalfMinute) {
    // Twice as hard from second 30 to 62.
    const MotionAnalysis analysis = analyseMotion(handMade(90,
                                                           [](double time) {
                                                               auto m = steadyPaddling(time);
                                                               if (time >= 30 && time < 62)
                                                                   m.forward = 2 * m.forward;
                                                               return m;
                                                           }),
                                                  WaterProfile);
    const auto sprint = bestSprint(analysis);
    ASSERT_TRUE(sprint);
    EXPECT_NEAR(sprint->figures.start, 1031, 1.6);
    EXPECT_NEAR(sprint->figures.seconds, 30, 1e-9);
    EXPECT_EQ(sprint->figures.strokes, 40U);
    EXPECT_NEAR(sprint->medianRate, 80, 2);
    EXPECT_GE(*sprint->best5, *sprint->meanPower);
    EXPECT_LE(*sprint->worst5, *sprint->meanPower);
    EXPECT_NEAR(*sprint->fatigue, 100 * (*sprint->best5 - *sprint->worst5) / *sprint->best5, 1e-9);
    const auto late = sprintFrom(analysis, analysis.strokes.size() - 10);
    ASSERT_TRUE(late);
    EXPECT_LT(late->figures.seconds, 10);
    EXPECT_FALSE(sprintFrom(analysis, analysis.strokes.size() - 1));
    EXPECT_FALSE(sprintFrom(analysis, analysis.strokes.size()));
}

TEST(WaterTests, DragIsReadFromGlides) {
    const Simulation truth = simulate({.seed = 91, .seconds = 300, .mount = PhoneMount::Forward});
    const MotionAnalysis analysis = analyseMotion(truth.session, WaterProfile);
    const auto calibration = calibrateDrag(analysis, truth.mass);
    ASSERT_TRUE(calibration);
    EXPECT_GE(calibration->glides, 4);
    EXPECT_NEAR(calibration->drag, truth.drag, 1);
    EXPECT_FALSE(calibrateDrag(analyseMotion(handMade(60, steadyPaddling), WaterProfile), 88))
        << "who never glides";
}

TEST(Segments, LieBetweenMarks) {
    const double marks[] = {30, 10, 20};
    const std::pair<double, std::int64_t> expected[] = {{9.9, 0}, {10, 1}, {19.9, 1}, {20, 2},
                                                        {25, 2},  {30, 0}, {99, 0}};
    for (const auto& [time, segment] : expected)
        EXPECT_EQ(segmentAt(time, marks), segment) << time;
    EXPECT_EQ(segmentAt(10, std::span(marks).first(1)), 0);
}

TEST(Segments, AverageTheirStrokesOnly) {
    std::vector<smartBMdata_v4> entries(4);
    entries[0] = {11, {}, {.strokeRate = 60, .force = 100, .power = 200}, 0};
    entries[1] = {12, {.rotationTime = 2}, {}, 0};
    entries[2] = {13, {}, {.strokeRate = 80, .force = 50, .power = 100}, 0};
    entries[3] = {25, {}, {.strokeRate = 70, .force = 10, .power = 20}, 0};
    numberSegments(entries, std::array{10.0, 20.0, 30.0});
    const std::vector<segmentStruct> rows = segmentAverages(entries);
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(rows[0].segment, 1);
    EXPECT_EQ(rows[0].strokerate, 70);
    EXPECT_EQ(rows[0].power, 150);
    EXPECT_EQ(rows[0].force, 75);
    EXPECT_EQ(rows[1].segment, 2);
}

} // namespace kavela::test
