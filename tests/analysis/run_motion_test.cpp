#include "analysis/run_motion.h"

#include "boatmotion/attachment.h"
#include "boatmotion/hand_made_recording.h"
#include "boatmotion/simulator.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

namespace kavela::test {
namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double RunStart = 20;  // seconds of the video, and of the recording but for the drift
constexpr double Drift = 0.0006; // of the recorder's clock

athletedata031 timedRun(const std::vector<double>& times) {
    athletedata031 run;
    run.names = {"A"};
    double at = RunStart;
    for (const double time : times) {
        at += time;
        run.sectioninfo.times.push_back(time);
        run.sectioninfo.cmtimes.push_back({CMTime{std::llround(at * 600), 600, 1, 0}});
        if (time == 0)
            run.sectioninfo.cmtimes.back().clear();
    }
    return run;
}

void attach(athletedata031& run, AttachedPart part) {
    run.bm = std::move(part.bm);
    run.watchmotion = std::move(part.watchmotion);
    run.gps = std::move(part.gps);
    run.hr = std::move(part.hr);
}

/// The recording begins with the video and drifts.
ClockFit fitOf(const bmrawdata_v5& session) {
    return {{0, session.boatmotion.front().timestamp}, 1 + Drift};
}

TEST(RunMotions, PlaceSimulatedStrokesOnTheSections) {
    const Simulation simulation =
        simulate({.seed = 7, .seconds = 150, .style = Style::Slalom, .hasFaults = false});
    bmrawdata_v5 session = simulation.session;
    session.heart.clear();
    for (int i = 0; i < 150; ++i)
        session.heart.push_back(
            {{session.boatmotion.front().timestamp + simulation.clockOffset + i}, 100.0 + i});
    athletedata031 run = timedRun({30, 25.5, 28.25, 22});
    run.cat = "K1W";
    const ClockFit fit = fitOf(session);
    const auto span = runSpan(run);
    ASSERT_TRUE(span);
    EXPECT_NEAR(span->start, RunStart, 1e-9);
    EXPECT_NEAR(span->end, RunStart + 105.75, 1e-9);
    attach(run, partOf(session, fit, span->start, span->end));

    const RunMotion motion = runMotion(run, infodata031{});
    EXPECT_EQ(motion.reason, "");
    EXPECT_NEAR(motion.drift, Drift, 1e-6);
    ASSERT_THAT(motion.sections, SizeIs(4));
    std::size_t all = 0;
    for (const SectionMotion& section : motion.sections) {
        const double first = fit.stampAt(RunStart + section.start);
        const double last = fit.stampAt(RunStart + section.end);
        const auto isWithin = [&](double moment) { return moment >= first && moment < last; };
        const auto strokes = std::ranges::count_if(
            simulation.strokes, [&](const TrueStroke& s) { return isWithin(s.catchTime); });
        const auto turns = std::ranges::count_if(
            simulation.turns, [&](const TrueTurn& t) { return isWithin((t.start + t.end) / 2); });
        double distance = 0;
        for (std::size_t i = 0; i < simulation.time.size(); ++i)
            if (isWithin(simulation.time[i]))
                distance += simulation.speed[i] / 100;
        EXPECT_NEAR(static_cast<double>(section.strokes.value_or(0)), static_cast<double>(strokes),
                    2);
        EXPECT_NEAR(static_cast<double>(section.turns.value_or(99)), static_cast<double>(turns), 1);
        EXPECT_NEAR(section.distance.value_or(0), distance, 0.15 * distance);
        EXPECT_NEAR(section.strokeRate.value_or(0), 80, 12);
        EXPECT_GT(section.maxSpeed.value_or(0), section.meanSpeed.value_or(9));
        EXPECT_NEAR(section.heartRate.value_or(0),
                    100 + RunStart + (section.start + section.end) / 2, 0.6);
        all += section.strokes.value_or(0);
    }
    EXPECT_EQ(motion.whole.strokes, all);
    EXPECT_EQ(motion.strokes.size(), all);

    analyzerdata analysed;
    analysed.sectioninfo.times = run.sectioninfo.times;
    analysed.bm = run.bm;
    analysed.gps = run.gps;
    EXPECT_EQ(runMotion(analysed).strokes.size(), all);
}

/// A stroke at the very start of the run is there: the margin gives the filters a lead.
TEST(RunMotions, StrokesLieWhereTheVideoShowsThem) {
    bmrawdata_v5 session = handMade(90, steadyPaddling);
    athletedata031 run = timedRun({20, 20});
    attach(run, partOf(session, fitOf(session), RunStart, RunStart + 40));
    const RunMotion motion = runMotion(run, infodata031{});
    ASSERT_EQ(motion.reason, "");
    EXPECT_NEAR(static_cast<double>(motion.strokes.size()), 40 / 0.75, 1.5);
    for (const RunStroke& stroke : motion.strokes) {
        const double video = RunStart + stroke.time;
        const double phase = std::remainder(video * (1 + Drift), 0.75);
        EXPECT_NEAR(phase, 0.05, 0.1) << video;
        EXPECT_NEAR(stroke.rate, 80, 1);
        EXPECT_EQ(stroke.section, stroke.time < 20 ? 0U : 1U);
    }
    EXPECT_NEAR(motion.whole.meanSpeed.value_or(0), 3, 0.1);
    EXPECT_NEAR(motion.whole.distance.value_or(0), 120, 4);
    EXPECT_FALSE(motion.whole.heartRate);
}

TEST(RunMotions, UntimedSectionsAreNotKnown) {
    bmrawdata_v5 session = handMade(90, steadyPaddling);
    athletedata031 run = timedRun({20, 0, 20, 0});
    const auto span = runSpan(run);
    ASSERT_TRUE(span);
    attach(run, partOf(session, fitOf(session), span->start, span->end));
    const RunMotion motion = runMotion(run, infodata031{});
    ASSERT_THAT(motion.sections, SizeIs(4));
    EXPECT_FALSE(motion.sections[1].strokes);
    EXPECT_FALSE(motion.sections[3].meanSpeed);
    EXPECT_EQ(motion.sections[2].start, 20);
    EXPECT_EQ(motion.seconds, 40);
    EXPECT_GT(motion.sections[2].strokes.value_or(0), 20U);
}

/// A recorder that was started late and failed for some seconds: what it did not see is not 0.
TEST(RunMotions, SectionsThatWereNotRecordedHaveNoCount) {
    bmrawdata_v5 session = handMade(120, steadyPaddling);
    const double begin = session.boatmotion.front().timestamp;
    std::erase_if(session.boatmotion, [&](const boatmotionrawdata_v5& sample) {
        const double moment = sample.timestamp - begin;
        return moment < RunStart + 30 || (moment > RunStart + 65 && moment < RunStart + 69);
    });
    athletedata031 run = timedRun({20, 20, 20, 20});
    attach(run, partOf(session, {{0, begin}, 1}, RunStart, RunStart + 80));
    const RunMotion motion = runMotion(run, infodata031{});
    ASSERT_EQ(motion.reason, "");
    using enum MotionCover::Share;
    EXPECT_THAT(motion.sections, testing::ElementsAre(testing::Field(&SectionMotion::cover, None),
                                                      testing::Field(&SectionMotion::cover, Part),
                                                      testing::Field(&SectionMotion::cover, Whole),
                                                      testing::Field(&SectionMotion::cover, Part)));
    EXPECT_FALSE(motion.sections[0].strokes);
    EXPECT_FALSE(motion.sections[0].turns);
    EXPECT_NEAR(static_cast<double>(motion.sections[1].strokes.value_or(0)), 10 / 0.75, 2.5);
    EXPECT_NEAR(motion.sections[3].covered, 16, 0.05);
    EXPECT_FALSE(motion.whole.strokes) << "no total of a part";
    EXPECT_THAT(motion.coverNotes,
                testing::ElementsAre("Of the first 30.0 s of the run nothing is recorded.",
                                     "From 65.0 s to 69.0 s of the run nothing is recorded."));
}

TEST(RunMotions, OfATrackAloneTellSpeedAndHeartRate) {
    bmrawdata_v5 session = handMade(90, steadyPaddling);
    const double date = session.gps.front().date.seconds;
    session.boatmotion.clear();
    for (int i = 0; i < 90; i += 5)
        session.heart.push_back({{date + i}, 150});
    athletedata031 run = timedRun({20, 20});
    attach(run, partOf(session, {{0, date}, 1}, RunStart, RunStart + 40));
    const RunMotion motion = runMotion(run, infodata031{});
    EXPECT_THAT(motion.reason, HasSubstr("No motion of the boat"));
    EXPECT_FALSE(motion.whole.strokes);
    EXPECT_NEAR(motion.whole.meanSpeed.value_or(0), 3, 1e-6);
    EXPECT_NEAR(motion.whole.heartRate.value_or(0), 150, 1e-6);
}

TEST(RunMotions, SayWhyNothingIsKnown) {
    EXPECT_THAT(runMotion(timedRun({20, 20}), infodata031{}).reason, HasSubstr("No motion"));
    athletedata031 untimed = timedRun({0, 0});
    untimed.bm = handMade(40, steadyPaddling).boatmotion;
    EXPECT_THAT(runMotion(untimed, infodata031{}).reason, HasSubstr("no times"));
    EXPECT_FALSE(runSpan(untimed));
    athletedata031 other = timedRun({20, 20});
    other.bm = handMade(80, steadyPaddling).boatmotion;
    EXPECT_THAT(runMotion(other, infodata031{}).reason, HasSubstr("not as long as the run"));
    athletedata031 few = timedRun({20, 20});
    few.bm = {{0, {}, {}, {}, {}}, {40, {}, {}, {}, {}}};
    EXPECT_THAT(runMotion(few, infodata031{}).reason, HasSubstr("too few"));
}

/// Whatever stands in a file, nothing is thrown and no figure is out of its senses.
TEST(RunMotions, BearAnyValues) {
    std::mt19937 dice(5);
    const double odd[] = {0,      -1,           1e300,
                          -1e300, 1e-300,       40,
                          1e9,    std::nan(""), std::numeric_limits<double>::infinity()};
    for (int round = 0; round < 200; ++round) {
        athletedata031 run = timedRun({20, 20});
        attach(run, partOf(handMade(60, steadyPaddling), {{0, 1000}, 1}, 10, 50));
        run.hr = {{{1}, 100}, {{41}, 100}};
        const auto spoil = [&](double& value) { value = odd[dice() % std::size(odd)]; };
        for (int i = 0; i < 5; ++i) {
            boatmotionrawdata_v5& sample = run.bm[dice() % run.bm.size()];
            spoil(round % 2 ? sample.timestamp : sample.acceleration.y);
            gpsrawdata& fix = run.gps[dice() % run.gps.size()];
            spoil(round % 3 ? fix.date.seconds : fix.speed);
            spoil(run.hr[dice() % 2].date.seconds);
        }
        if (round % 5 == 0)
            spoil(run.sectioninfo.times[dice() % 2]);
        const RunMotion motion = runMotion(run, infodata031{});
        for (const SectionMotion& section : motion.sections) {
            EXPECT_TRUE(std::isfinite(section.meanSpeed.value_or(0)));
            EXPECT_LE(section.maxSpeed.value_or(0), 20);
            EXPECT_TRUE(std::isfinite(section.heartRate.value_or(0)));
        }
    }
}

} // namespace
} // namespace kavela::test
