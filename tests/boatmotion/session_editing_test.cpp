#include "boatmotion/session_editing.h"

#include "boatmotion/session_clock.h"
#include "boatmotion/session_table.h"
#include "boatmotion/simulator.h"
#include "boatmotion/strokes/segments.h"
#include "common/json_encode.h"

#include <gmock/gmock.h>

#include <cmath>

namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class SessionEditing : public testing::Test {
protected:
    static bmrawdata_v5 slalom() {
        return simulate({.seed = 7, .seconds = 60, .style = Style::Slalom}).session;
    }

    static EditedSession edited(bmrawdata_v5 recording) {
        const MotionAnalysis analysis = analyseMotion(recording, {});
        return editedSession(std::make_shared<const bmrawdata_v5>(std::move(recording)), analysis);
    }
};

template <class Sample>
std::vector<Sample> within(const std::vector<Sample>& samples, double from, double to) {
    std::vector<Sample> kept;
    for (const Sample& sample : samples)
        if (sample.timestamp >= from && sample.timestamp < to)
            kept.push_back(sample);
    return kept;
}

} // namespace

TEST_F(SessionEditing, ACutKeepsWhatIsInsideByteForByte) {
    const EditedSession before = edited(slalom());
    const double begin = before.recording->boatmotion.front().timestamp;
    const MomentRange range{begin + 15, begin + 40};
    const auto after = keptRange(before, range);
    ASSERT_TRUE(after);
    const bmrawdata_v5 saved = recordingOf(*after);
    EXPECT_EQ(encode(saved.boatmotion),
              encode(within(before.recording->boatmotion, range.from, range.to)));
    EXPECT_EQ(encode(after->session.strokesData),
              encode(within(before.session.strokesData, range.from, range.to)));
    EXPECT_THAT(saved.gps.size(), testing::AllOf(testing::Ge(24U), testing::Le(26U)));
    EXPECT_EQ(encode(saved.gps), encode(after->session.gps));
    // what is read again has its fixes where they were
    EXPECT_THAT(analyseMotion(saved, {}).clockOffset, DoubleNear(before.clockOffset, 0.05));
    EXPECT_EQ(before.recording->boatmotion.front().timestamp, begin) << "an edit is a new one";
}

TEST_F(SessionEditing, ARemovedRangeLeavesBothSides) {
    const EditedSession before = edited(slalom());
    const double begin = before.recording->boatmotion.front().timestamp;
    const auto after = withoutRange(before, {begin + 20, begin + 30});
    ASSERT_TRUE(after);
    const auto& samples = after->recording->boatmotion;
    EXPECT_EQ(samples.front().timestamp, begin);
    EXPECT_EQ(after->session.info.date, before.session.info.date);
    EXPECT_THAT(within(samples, begin + 20, begin + 30), IsEmpty());
    EXPECT_FALSE(within(samples, begin + 30, begin + 50).empty());
    EXPECT_FALSE(keptRange(before, {begin, begin + 0.2})) << "too little to be a recording";
    EXPECT_FALSE(keptRange(before, {begin + 1000, begin + 2000}));
}

TEST_F(SessionEditing, SegmentsAreFoundAgainInAFile) {
    EditedSession session = edited(slalom());
    const double begin = session.session.strokesData.front().timestamp;
    session.marks = {begin + 5, begin + 15, begin + 30};
    numberSegments(session.session.strokesData, session.marks);
    const EditedSession again = editedSession(session.session);
    ASSERT_THAT(again.marks, SizeIs(3));
    std::vector<smartBMdata_v4> numbered = session.session.strokesData;
    numberSegments(numbered, again.marks);
    EXPECT_EQ(encode(numbered), encode(session.session.strokesData));
    const auto segments = figuresOf(session).segments;
    ASSERT_THAT(segments, SizeIs(3));
    EXPECT_NEAR(segments[1].seconds, 10, 1e-9);
    ASSERT_TRUE(segments[2].distance);
    EXPECT_NEAR(*segments[2].distance / 15, *segments[2].speed, 1e-9);
}

TEST_F(SessionEditing, ASessionEndingInASegmentKeepsItsLastStrokeThere) {
    EditedSession session = edited(slalom());
    numberSegments(session.session.strokesData,
                   std::vector{session.session.strokesData.front().timestamp, 1e9});
    const EditedSession again = editedSession(session.session);
    std::vector<smartBMdata_v4> numbered = session.session.strokesData;
    numberSegments(numbered, again.marks);
    EXPECT_EQ(numbered.back().segment, 1);
}

TEST_F(SessionEditing, StrokesOfAFileFindTheirFixesByTheTurns) {
    const EditedSession session = edited(slalom());
    const SessionClock clock = clockOf(session.session);
    EXPECT_TRUE(clock.isGuessed);
    EXPECT_THAT(clock.offset, DoubleNear(session.clockOffset, 3));
    smartAlldata_v4 dated = session.session;
    for (smartBMdata_v4& entry : dated.strokesData)
        entry.timestamp += session.clockOffset;
    EXPECT_EQ(clockOf(dated).offset, 0);
    EXPECT_FALSE(clockOf({}).offset > 0) << "an empty session has a clock, too";
}

TEST_F(SessionEditing, WhatIsNotKnownIsEmptyInTheTables) {
    bmrawdata_v5 recording = slalom();
    recording.gps.clear();
    recording.heart.clear();
    EditedSession session = edited(recording);
    const SessionFigures figures = figuresOf(session);
    ASSERT_FALSE(figures.strokes.empty());
    EXPECT_FALSE(figures.strokes[0].force || figures.strokes[0].power || figures.strokes[0].speed ||
                 figures.strokes[0].heartRate || figures.strokes[0].way);
    const std::string csv = csvOf(strokeGrid(session, figures));
    const std::string line = csv.substr(csv.find('\n') + 1, csv.find('\n', csv.find('\n') + 1));
    EXPECT_THAT(line, HasSubstr(";;;;")) << "force, impulse, power: no 0 that nobody measured";
    EXPECT_THAT(metersOf(session, figures, 50), IsEmpty());
    EXPECT_FALSE(imbalance(figures.sides[0].force, figures.sides[1].force));
    EXPECT_THAT(csvOf(metersGrid({})), HasSubstr("Distance (m);Stroke rate (1/min)"));
}

TEST_F(SessionEditing, DistanceMarksAddUpToTheWay) {
    const EditedSession session = edited(slalom());
    const SessionFigures figures = figuresOf(session);
    const double way = figures.track.back().distance;
    const auto rows = metersOf(session, figures, 25);
    ASSERT_THAT(rows, SizeIs(static_cast<std::size_t>(way / 25)));
    double seconds = 0;
    for (const MetersRow& row : rows)
        seconds += 25 / row.values.speed;
    EXPECT_NEAR(seconds, figures.track.back().time - figures.track.front().time, 25 / 1.0);
    EXPECT_NEAR(rows[0].values.drag, 5 * rows[0].values.speed * rows[0].values.speed, 1e-9);
    EXPECT_THAT(imbalance(90, 110), testing::Optional(DoubleNear(20, 1e-9)));
}

TEST_F(SessionEditing, DamagedNumbersDoNoHarm) {
    EditedSession session = edited(slalom());
    auto& data = session.session.strokesData;
    data[0].timestamp = -1e308;
    data[1].stroke.strokeRate = 1e-300;
    data[2].stroke.force = 1e308;
    data.back().timestamp = 1e308;
    data.back().segment = 1'000'000'000'000;
    for (std::size_t i = 0; i < session.session.gps.size(); i += 2)
        session.session.gps[i] = {{session.session.gps[i].date.seconds}, 0, -80, 170};
    session.session.gps.back().date = {1e300};
    session.session.heart.front().date = {-1e300};
    const EditedSession read = editedSession(session.session);
    EXPECT_TRUE(std::isfinite(read.clockOffset));
    for (const EditedSession& each : {session, read}) {
        const SessionFigures figures = figuresOf(each);
        EXPECT_FALSE(figures.strokes.empty());
        EXPECT_LE(metersOf(each, figures, 5).size(), 20000U);
        EXPECT_THAT(csvOf(strokeGrid(each, figures)), Not(HasSubstr("inf")));
        EXPECT_FALSE(csvOf(segmentGrid(figures)).empty());
    }
}

TEST_F(SessionEditing, AFixWithoutSpeedIsNoStandstill) {
    std::vector<gpsrawdata> fixes;
    for (int i = 0; i < 5; ++i)
        fixes.push_back({{100.0 + i}, i == 2 ? 0 : 2.0, 47 + i * 2.0 / 111195, 9});
    fixes.push_back({{200}, 2, 400, 9});
    const Track track = trackOf(fixes, 100);
    ASSERT_THAT(track, SizeIs(5));
    EXPECT_NEAR(track.back().distance, 8, 0.01);
    EXPECT_FALSE(speedAt(track, 1.5));
    EXPECT_THAT(speedAt(track, 3.5), testing::Optional(2));
    EXPECT_FALSE(placeAt(track, 5));
}

} // namespace kavela::test
