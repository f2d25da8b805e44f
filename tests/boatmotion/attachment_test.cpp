#include "boatmotion/attachment.h"
#include "boatmotion/event_finding.h"
#include "boatmotion/hand_made_recording.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// The recording's clock shows 1000 at its beginning, 20 s into the video, and runs a little fast.
constexpr double Rate = 1.0004;

double stampOf(double video) {
    return 1000 + Rate * (video - 20);
}

bmrawdata_v5 recording(double seconds) {
    bmrawdata_v5 session = handMade(seconds, steadyPaddling);
    for (int i = 0; i < seconds; i += 4)
        session.heart.push_back({{session.info.date.seconds + i + 0.7}, 120.0 + i});
    return session;
}

std::string refusal(const std::vector<EventPair>& events) {
    try {
        (void)clockFit(events);
        return {};
    } catch (const ClockError& error) {
        return error.what();
    }
}

TEST(ClockFits, OneEventTellsTheOffset) {
    const ClockFit fit = clockFit(std::vector<EventPair>{{12, 500}});
    EXPECT_EQ(fit.rate, 1);
    EXPECT_EQ(fit.stampAt(15), 503);
    EXPECT_EQ(fit.videoAt(503), 15);
}

TEST(ClockFits, TwoEventsTellTheDriftAsWell) {
    const ClockFit fit = clockFit(std::vector<EventPair>{{30, stampOf(30)}, {120, stampOf(120)}});
    EXPECT_NEAR(fit.rate, Rate, 1e-12);
    EXPECT_NEAR(fit.stampAt(75.5), stampOf(75.5), 1e-9);
    EXPECT_NEAR(fit.videoAt(stampOf(10)), 10, 1e-9);
}

TEST(ClockFits, EventsThatTellNoRelationAreRefused) {
    EXPECT_THAT(refusal({}), HasSubstr("An event that both"));
    EXPECT_THAT(refusal({{10, 100}, {14.9, 104.9}}), HasSubstr("4.9 s apart"));
    EXPECT_THAT(refusal({{10, 100}, {110, 201.1}}), HasSubstr("1.1 % faster"));
    EXPECT_THAT(refusal({{10, 100}, {110, 90}}), HasSubstr("slower"));
    EXPECT_THAT(refusal({{10, std::nan("")}}), HasSubstr("no number"));
}

TEST(AttachedParts, BeginAndEndExactlyAMarginAroundTheRun) {
    const bmrawdata_v5 session = recording(150);
    const ClockFit fit = clockFit(std::vector<EventPair>{{30, stampOf(30)}, {120, stampOf(120)}});
    const AttachedPart part = partOf(session, fit, 40.1234, 130.4321);
    const double offset = session.info.date.seconds - 1000;
    const double first = stampOf(40.1234 - AttachMargin);
    const double last = stampOf(130.4321 + AttachMargin);
    EXPECT_THAT(part.notes, IsEmpty());
    EXPECT_NEAR(part.bm.front().timestamp, first, 1e-9);
    EXPECT_NEAR(part.bm.back().timestamp, last, 1e-9);
    EXPECT_NEAR(part.gps.front().date.seconds, first + offset, 1e-6);
    EXPECT_NEAR(part.hr.back().date.seconds, last + offset, 1e-6);
    EXPECT_NEAR(part.gps.front().speed, 3, 1e-9);
    EXPECT_GT(part.hr.back().hr, 0);
    // What is between the edges is the recorder's own.
    const auto own = std::ranges::find(session.boatmotion, part.bm[1].timestamp,
                                       &boatmotionrawdata_v5::timestamp);
    ASSERT_NE(own, session.boatmotion.end());
    EXPECT_EQ(own->acceleration.y, part.bm[1].acceleration.y);

    const auto clock = runClock(part.bm.front().timestamp, part.bm.back().timestamp, 90.3087);
    ASSERT_TRUE(clock);
    EXPECT_NEAR(clock->rate, Rate, 1e-9);
    EXPECT_NEAR(clock->momentOf(stampOf(85.25)), 85.25 - 40.1234, 1e-9);
}

TEST(AttachedParts, SayWhatTheRecordingDoesNotCover) {
    const bmrawdata_v5 session = recording(60);
    const ClockFit fit{{20, 1000}, 1};
    const AttachedPart late = partOf(session, fit, 15, 70);
    EXPECT_THAT(late.notes, ElementsAre("Of the first 5.0 s of the run nothing is recorded."));
    EXPECT_EQ(late.bm.front().timestamp, 992) << "the cut is where it has to be all the same";
    EXPECT_EQ(late.bm.front().acceleration.y, 0);
    EXPECT_EQ(late.gps.front().speed, -1);
    EXPECT_EQ(late.hr.front().hr, 0);
    EXPECT_THAT(partOf(session, fit, 40, 90).notes,
                ElementsAre("Of the last 10.0 s of the run nothing is recorded."));
    const AttachedPart none = partOf(session, fit, 200, 300);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_THAT(none.notes, ElementsAre("The recording does not reach into this run."));
    EXPECT_THROW((void)partOf(session, fit, 50, 50), ClockError);
}

TEST(AttachedParts, TakeTheWatchBySeveralSecondsMore) {
    bmrawdata_v5 session = recording(60);
    for (const boatmotionrawdata_v5& sample : session.boatmotion)
        session.watchmotion.push_back(
            {sample.timestamp, sample.acceleration, sample.rotationRate, {}, sample.gravity});
    const AttachedPart part = partOf(session, {{0, 1000}, 1}, 20, 40);
    EXPECT_NEAR(part.watchmotion.front().timestamp, 1020 - AttachMargin - WatchMargin, 0.011);
    EXPECT_NEAR(part.watchmotion.back().timestamp, 1040 + AttachMargin + WatchMargin, 0.011);
}

TEST(AttachedParts, OfATrackAloneGoByTheDate) {
    bmrawdata_v5 track = recording(100);
    track.boatmotion.clear();
    const double date = track.gps.front().date.seconds;
    const AttachedPart part = partOf(track, {{0, date}, 1}, 10.5, 70.25);
    EXPECT_THAT(part.bm, IsEmpty());
    EXPECT_EQ(part.gps.front().date.seconds, date + 7.5);
    EXPECT_EQ(part.hr.back().date.seconds, date + 73.25);
}

TEST(RunClocks, TellACutWithAMarginFromABareOne) {
    struct Case {
        const char* name;
        double length;
        std::optional<double> margin;
    };
    const Case cases[] = {{"margin", 96, AttachMargin},
                          {"bare", 90, 0},
                          {"margin, slow clock", 95.2, AttachMargin},
                          {"bare, fast clock", 90.8, 0},
                          {"bare, whole samples", 89.98, 0},
                          {"some other cut", 93, {}},
                          {"longer", 200, {}},
                          {"nothing", 0, {}}};
    for (const Case& expected : cases) {
        const auto clock = runClock(1000, 1000 + expected.length, 90);
        ASSERT_EQ(clock.has_value(), expected.margin.has_value()) << expected.name;
        if (clock) {
            EXPECT_EQ(clock->margin, *expected.margin) << expected.name;
        }
    }
    EXPECT_FALSE(runClock(0, 90, 0));
    EXPECT_FALSE(runClock(std::nan(""), 90, 90));
}

TEST(Events, AreTheStrongestJoltsNearby) {
    std::vector<boatmotionrawdata_v5> samples = recording(30).boatmotion;
    samples[1000].acceleration.x += 3; // a hit
    samples[1001].acceleration.x -= 2; // and its echo
    samples[1080].acceleration.z += 1;
    samples[2500].acceleration.z += 9; // far away
    std::swap(samples[999], samples[1002]);
    const auto events = estimateEvents(samples, 1010.4);
    ASSERT_GE(events.size(), 2U);
    EXPECT_NEAR(events[0].stamp, 1010.01, 0.011);
    EXPECT_NEAR(events[1].stamp, 1010.80, 0.011);
    EXPECT_GT(events[0].jerk, events[1].jerk);
    EXPECT_THAT(estimateEvents(samples, 1010.4, 2, 1), SizeIs(1));
    EXPECT_THAT(estimateEvents(samples, 5000), IsEmpty());
    EXPECT_THAT(estimateEvents({}, 0), IsEmpty());
}

} // namespace
} // namespace kavela::test
