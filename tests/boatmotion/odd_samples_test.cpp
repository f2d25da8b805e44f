#include "boatmotion/hand_made_recording.h"
#include "boatmotion/strokes/motion_analysis.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <random>

/// Recordings as no phone should make them.
namespace kavela::test {

namespace {

using testing::HasSubstr;

constexpr MotionProfile Profile{.mount = Mount::TopToBow};

std::string refusalOf(const bmrawdata_v5& session, const MotionProfile& profile = Profile) {
    try {
        (void)analyseMotion(session, profile);
        return {};
    } catch (const MotionError& error) {
        return error.what();
    }
}

/// A way to spoil a recording of which the analysis must still make sense.
struct Spoiling {
    const char* name;
    std::function<void(bmrawdata_v5&)> spoil;
    std::size_t leastStrokes; ///< of 80
};

void PrintTo(const Spoiling& spoiling, std::ostream* out) {
    *out << spoiling.name;
}

class Spoiled : public testing::TestWithParam<Spoiling> {};

bool isFinite(const std::vector<double>& values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

void expectFinite(const MotionAnalysis& analysis) {
    const MotionSeries& s = analysis.series;
    for (const auto* values : {&s.time, &s.forward, &s.speed, &s.yawRate, &s.roll, &s.pitch,
                               &s.force, &analysis.strokeRates})
        EXPECT_TRUE(isFinite(*values));
    for (const auto* values : {&s.forward, &s.speed, &s.yawRate, &s.roll, &s.pitch, &s.force})
        EXPECT_EQ(values->size(), s.size());
    for (const Stroke& stroke : analysis.strokes) {
        const smartStraight_v3& v = stroke.values;
        EXPECT_TRUE(isFinite({stroke.catchTime, stroke.exitTime, stroke.cycle, stroke.confidence,
                              v.strokeRate, v.aveAcce, v.maxAcce, v.force, v.impulse, v.power,
                              v.aveDecce, v.waterPhase, v.aerealPhase, v.roll}));
        EXPECT_GT(stroke.exitTime, stroke.catchTime);
        EXPECT_GT(stroke.cycle, 0);
    }
}

} // namespace

TEST(OddSamples, TooFewAreRefused) {
    EXPECT_THAT(refusalOf({}), HasSubstr("0 can be used, 100 are needed"));
    bmrawdata_v5 session = handMade(10, steadyPaddling);
    session.boatmotion.resize(1);
    EXPECT_THAT(refusalOf(session), HasSubstr("too few"));
    session = handMade(0.99, steadyPaddling);
    EXPECT_THAT(refusalOf(session), HasSubstr("99 can be used"));
    session = handMade(1.2, steadyPaddling);
    EXPECT_EQ(refusalOf(session), "");
    // Stamps that tell no time at all.
    for (boatmotionrawdata_v5& sample : session.boatmotion)
        sample.timestamp = 5;
    EXPECT_THAT(refusalOf(session), HasSubstr("0 can be used"));
}

TEST(OddSamples, ProfilesWithoutSenseAreRefused) {
    const bmrawdata_v5 session = handMade(5, steadyPaddling);
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(refusalOf(session, {.mass = 0}), HasSubstr("mass"));
    EXPECT_THAT(refusalOf(session, {.mass = none}), HasSubstr("mass"));
    EXPECT_THAT(refusalOf(session, {.drag = -1}), HasSubstr("drag"));
    EXPECT_THAT(refusalOf(session, {.leastTurnPeak = none}), HasSubstr("turn"));
}

TEST_P(Spoiled, StaysSound) {
    bmrawdata_v5 session = handMade(60, steadyPaddling);
    GetParam().spoil(session);
    const MotionAnalysis analysis = analyseMotion(session, Profile);
    expectFinite(analysis);
    EXPECT_GE(analysis.strokes.size(), GetParam().leastStrokes);
    EXPECT_LE(analysis.strokes.size(), 84U);
    EXPECT_LT(analysis.series.size(), 20 * session.boatmotion.size() + 100);
}

INSTANTIATE_TEST_SUITE_P(
    Recordings, Spoiled,
    testing::Values(
        Spoiling{"no_change", [](bmrawdata_v5&) {}, 78},
        Spoiling{"in_any_order",
                 [](bmrawdata_v5& s) {
                     std::shuffle(s.boatmotion.begin(), s.boatmotion.end(), std::mt19937(1));
                 },
                 78},
        Spoiling{"twice",
                 [](bmrawdata_v5& s) {
                     const auto copy = s.boatmotion;
                     s.boatmotion.insert(s.boatmotion.end(), copy.begin(), copy.end());
                 },
                 78},
        Spoiling{"clock_runs_backward_for_a_moment",
                 [](bmrawdata_v5& s) {
                     for (std::size_t i = 3000; i < s.boatmotion.size(); ++i)
                         s.boatmotion[i].timestamp -= 0.4;
                 },
                 74},
        Spoiling{"clock_jumps_far",
                 [](bmrawdata_v5& s) {
                     for (std::size_t i = 3000; i < s.boatmotion.size(); ++i)
                         s.boatmotion[i].timestamp += 3e9;
                 },
                 70},
        Spoiling{"hole",
                 [](bmrawdata_v5& s) {
                     s.boatmotion.erase(s.boatmotion.begin() + 2000, s.boatmotion.begin() + 2500);
                 },
                 70},
        Spoiling{"absurd_values",
                 [](bmrawdata_v5& s) {
                     for (std::size_t i = 5; i < s.boatmotion.size(); i += 50) {
                         s.boatmotion[i].acceleration.y = i % 100 == 5 ? 1e308 : -1e308;
                         s.boatmotion[i + 1].rotationRate.z = 1e300;
                         s.boatmotion[i + 2].timestamp = 1e300;
                         s.boatmotion[i + 3].timestamp = std::nan("");
                     }
                 },
                 74},
        Spoiling{"knocks",
                 [](bmrawdata_v5& s) {
                     for (std::size_t i = 5; i < s.boatmotion.size(); i += 150)
                         s.boatmotion[i].acceleration.y = 20;
                 },
                 76},
        Spoiling{"no_gravity",
                 [](bmrawdata_v5& s) {
                     for (auto& sample : s.boatmotion)
                         sample.gravity = {};
                 },
                 78},
        Spoiling{"no_gravity_no_attitude",
                 [](bmrawdata_v5& s) {
                     for (auto& sample : s.boatmotion) {
                         sample.gravity = {};
                         sample.attitude = {};
                     }
                 },
                 78},
        Spoiling{"gravity_upward",
                 [](bmrawdata_v5& s) {
                     for (auto& sample : s.boatmotion)
                         sample.gravity = {-sample.gravity.x, -sample.gravity.y, -sample.gravity.z};
                 },
                 78},
        Spoiling{"absurd_fixes",
                 [](bmrawdata_v5& s) {
                     for (std::size_t i = 0; i < s.gps.size(); i += 3) {
                         s.gps[i].speed = 1e300;
                         s.gps[i + 1].speed = -1;
                         s.gps[i + 1].date.seconds = -1e300;
                     }
                 },
                 76},
        Spoiling{"every_seventh_fix",
                 [](bmrawdata_v5& s) {
                     std::size_t i = 0;
                     std::erase_if(s.gps, [&](const gpsrawdata&) { return i++ % 7 != 0; });
                 },
                 76},
        Spoiling{"absurd_watch",
                 [](bmrawdata_v5& s) {
                     s.watchmotion.resize(300);
                     for (std::size_t i = 0; i < 300; ++i) {
                         s.watchmotion[i].timestamp = static_cast<double>(i) * 1e7;
                         s.watchmotion[i].gravity.x = 1e300;
                     }
                 },
                 78}),
    [](const auto& instance) { return instance.param.name; });

TEST(OddSamples, HoleEndsABoutAndHoldsNoStroke) {
    bmrawdata_v5 session = handMade(60, steadyPaddling);
    session.boatmotion.erase(session.boatmotion.begin() + 2000, session.boatmotion.begin() + 2070);
    const MotionAnalysis analysis = analyseMotion(session, Profile);
    EXPECT_TRUE(analysis.has(MotionFlag::HasHoles));
    std::size_t ends = 0;
    for (const Stroke& stroke : analysis.strokes) {
        ends += stroke.endOfBout;
        EXPECT_TRUE(stroke.exitTime < 1020.05 || stroke.catchTime > 1020.65) << stroke.catchTime;
        EXPECT_LE(stroke.cycle, 1) << "the cycle of the stroke before";
    }
    EXPECT_EQ(ends, 2U);
}

TEST(OddSamples, GravityIsFlippedOrRebuilt) {
    const auto rolling = [](double time) {
        HandMadeMotion motion = steadyPaddling(time);
        motion.roll = 0.1 * std::sin(time);
        return motion;
    };
    const bmrawdata_v5 session = handMade(30, rolling);
    const std::vector<double> roll = analyseMotion(session, Profile).series.roll;
    bmrawdata_v5 flipped = session;
    bmrawdata_v5 missing = session;
    for (auto& sample : flipped.boatmotion)
        sample.gravity = {-sample.gravity.x, -sample.gravity.y, -sample.gravity.z};
    for (auto& sample : missing.boatmotion)
        sample.gravity = {};
    EXPECT_THAT(analyseMotion(flipped, Profile).series.roll,
                testing::Pointwise(testing::DoubleNear(1e-6), roll));
    const MotionAnalysis rebuilt = analyseMotion(missing, Profile);
    EXPECT_TRUE(rebuilt.has(MotionFlag::GravityRebuilt));
    EXPECT_THAT(rebuilt.series.roll, testing::Pointwise(testing::DoubleNear(1e-6), roll));
    EXPECT_NEAR(*std::max_element(roll.begin(), roll.end()), 0.1, 0.02);
}

/// Where the fixes are put on the samples' clock.
TEST(OddSamples, ClocksAreBroughtTogether) {
    bmrawdata_v5 session = handMade(60, steadyPaddling);
    EXPECT_NEAR(analyseMotion(session, Profile).clockOffset, 736500000 - 1000, 1e-3);
    for (auto& sample : session.boatmotion)
        sample.timestamp += 736500000 - 1000 + 0.5;
    EXPECT_EQ(analyseMotion(session, Profile).clockOffset, 0) << "stamps that are dates";
    session = handMade(60, steadyPaddling);
    session.info.date = {0};
    const MotionAnalysis guessed = analyseMotion(session, Profile);
    EXPECT_NEAR(guessed.clockOffset, 736500000 - 1000, 1e-3) << "by the first fix";
    EXPECT_TRUE(guessed.has(MotionFlag::GuessedClocks));
    EXPECT_TRUE(guessed.hasSpeed);
}

} // namespace kavela::test
