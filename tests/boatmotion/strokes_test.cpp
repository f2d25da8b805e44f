#include "boatmotion/hand_made_recording.h"
#include "boatmotion/stroke_scoring.h"
#include "boatmotion/strokes/stroke_table.h"

#include <gmock/gmock.h>

/// What the analysis finds in recordings of which everything is known. All figures over more seeds:
/// bench/strokes.
namespace kavela::test {

namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Analysed {
    Simulation truth;
    MotionAnalysis analysis;
    Score found;
};

Analysed analysed(const Scenario& scenario) {
    Analysed result{simulate(scenario), {}, {}};
    const MotionProfile profile = profileOf(result.truth.session.athleteinfo);
    result.analysis = analyseMotion(result.truth.session, profile);
    result.found = score(result.truth, result.analysis);
    return result;
}

MotionAnalysis analysed(const bmrawdata_v5& session, std::optional<Mount> mount = Mount::TopToBow) {
    return analyseMotion(session, MotionProfile{.mount = mount});
}

/// A scenario with the least share of strokes to be found.
struct Expectation {
    const char* name;
    Scenario scenario;
    double f1;
    double straightHands;
};

void PrintTo(const Expectation& expectation, std::ostream* out) {
    *out << expectation.name;
}

class Simulated : public testing::TestWithParam<Expectation> {};

} // namespace

TEST_P(Simulated, StrokesAndHandsAreFound) {
    const auto& [name, scenario, f1, straightHands] = GetParam();
    const Analysed result = analysed(scenario);
    EXPECT_GE(result.found.f1(), f1);
    EXPECT_GE(result.found.rightStraightHands / result.found.straightHands, straightHands);
    EXPECT_LE(medianSize(result.found.rateErrors), 0.03);
    EXPECT_EQ(result.found.matchedTurns, result.found.trueTurns);
    EXPECT_EQ(result.found.falseTurns, 0);
    EXPECT_THAT(result.analysis.slips, IsEmpty());
    EXPECT_TRUE(
        std::is_sorted(result.analysis.strokes.begin(), result.analysis.strokes.end(),
                       [](const Stroke& a, const Stroke& b) { return a.exitTime <= b.catchTime; }));
}

INSTANTIATE_TEST_SUITE_P(
    Boats, Simulated,
    testing::Values(
        Expectation{"slow", {.seed = 71, .strokesPerMinute = 45, .sea = Sea::Light}, 0.95, 0.97},
        Expectation{"calm", {.seed = 72, .mount = PhoneMount::Forward}, 0.98, 0.99},
        Expectation{"phone_backward", {.seed = 73, .mount = PhoneMount::Backward}, 0.98, 0.99},
        Expectation{"slow_samples", {.seed = 74, .sampling = Sampling::Hz50}, 0.98, 0.99},
        Expectation{"changing_samples", {.seed = 75, .sampling = Sampling::Switching}, 0.98, 0.99},
        Expectation{"slalom",
                    {.seed = 76, .strokesPerMinute = 75, .sea = Sea::Light, .style = Style::Slalom},
                    0.97,
                    0.90},
        Expectation{
            "fast_and_rough",
            {.seed = 77, .strokesPerMinute = 120, .sea = Sea::Rough, .style = Style::Slalom},
            0.96,
            0.93},
        Expectation{"canoe", {.seed = 78, .strokesPerMinute = 65, .isCanoe = true}, 0.98, 0.95},
        Expectation{"watch", {.seed = 79, .style = Style::Slalom, .hasWatch = true}, 0.97, 0.97},
        Expectation{"noisy", {.seed = 80, .noise = 0.06}, 0.97, 0.95}),
    [](const auto& instance) { return instance.param.name; });

TEST(Strokes, HandsHoldInTurnsAndAtFewStrokesWhoeverPaddles) {
    Score all;
    Score slow;
    for (std::uint64_t i = 0; i < 8; ++i) {
        const bool isSlow = i < 4;
        const Score found = analysed({.seed = 640001 + i,
                                      .strokesPerMinute = isSlow ? 40 : 50 + 12.0 * double(i),
                                      .sea = i % 2 == 0 ? Sea::Calm : Sea::Light,
                                      .style = Style::Slalom,
                                      .isCanoe = i == 7,
                                      .isVaried = true})
                                .found;
        all.add(found);
        if (isSlow)
            slow.add(found);
    }
    EXPECT_GE(all.rightTurningHands / all.turningHands, 0.9);
    EXPECT_GE(all.rightStraightHands / all.straightHands, 0.98);
    EXPECT_GE(slow.rightStraightHands / slow.straightHands, 0.97);
    EXPECT_GE(slow.f1(), 0.94);
}

TEST(Strokes, PhoneThatSlipsIsToldAndBothSidesAreAnalysed) {
    for (const double degrees : {12.0, 45.0}) {
        const double slip = degrees * std::numbers::pi / 180;
        const Analysed result = analysed({.seed = 85,
                                          .sea = Sea::Light,
                                          .style = Style::Slalom,
                                          .isVaried = true,
                                          .slip = slip});
        EXPECT_TRUE(result.analysis.has(MotionFlag::PhoneSlipped));
        ASSERT_EQ(result.analysis.slips.size(), 1U) << degrees;
        EXPECT_NEAR(result.analysis.slips.front().time, result.truth.slipTime, 3);
        EXPECT_NEAR(result.analysis.slips.front().angle, slip, 0.1);
        EXPECT_THAT(notesOf(result.analysis),
                    Contains(HasSubstr("slipped in its mount about 0:5")));
        EXPECT_GE(result.found.f1(), 0.97);
        EXPECT_GE(result.found.rightStraightHands / result.found.straightHands, 0.97);
    }
}

TEST(Strokes, CanoeThatCirclesOnOneSideIsNeitherLostNorTakenForASlip) {
    const Analysed result = analysed({.seed = 700030,
                                      .strokesPerMinute = 110,
                                      .mount = PhoneMount::Forward,
                                      .isCanoe = true,
                                      .isVaried = true});
    EXPECT_TRUE(result.analysis.isBowKnown);
    EXPECT_THAT(result.analysis.slips, IsEmpty());
    EXPECT_GE(result.found.rightStraightHands / result.found.straightHands, 0.97);
}

TEST(Strokes, ForceAndPhasesComeNearTheTruth) {
    const Analysed result = analysed({.seed = 81, .sea = Sea::Light});
    EXPECT_LE(medianSize(result.found.catchErrors), 0.04);
    EXPECT_LE(medianSize(result.found.exitErrors), 0.04);
    EXPECT_LE(medianSize(result.found.impulseErrors), 0.15);
    EXPECT_LE(medianSize(result.found.powerErrors), 0.15);
    EXPECT_LE(medianSize(result.found.speedErrors), 0.15);
}

TEST(Strokes, WatchIsAlignedAndTurnsHandsForTheBetter) {
    const Scenario scenario{.seed = 82, .style = Style::Slalom, .hasWatch = true};
    const Analysed result = analysed(scenario);
    EXPECT_TRUE(result.analysis.usedWatch);
    EXPECT_NEAR(result.analysis.watchOffset, result.truth.watchOffset, 0.05);
    Simulation strange = result.truth;
    for (watchmotiondata_v5& sample : strange.session.watchmotion)
        sample.acceleration = {};
    const MotionAnalysis ignored = analysed(strange.session, std::nullopt);
    EXPECT_FALSE(ignored.usedWatch);
    EXPECT_TRUE(ignored.has(MotionFlag::WatchIgnored));
}

TEST(Strokes, WavesAtRestAreNone) {
    const Analysed result = analysed({.seed = 83, .sea = Sea::Rough, .isIdle = true});
    EXPECT_LE(result.analysis.strokes.size(), 4U) << "in two minutes";
}

TEST(Strokes, WithoutFixesOnlySpeedAndForceAreUnknown) {
    const Scenario scenario{.seed = 84, .mount = PhoneMount::Backward, .hasPosition = false};
    const Simulation truth = simulate(scenario);
    const MotionAnalysis known = analysed(truth.session, Mount::BottomToBow);
    EXPECT_GE(score(truth, known).f1(), 0.97);
    EXPECT_TRUE(known.has(MotionFlag::NoPosition));
    EXPECT_TRUE(known.has(MotionFlag::MountAssumed));
    EXPECT_FALSE(known.has(MotionFlag::UnknownMount));
    EXPECT_FALSE(known.hasSpeed);
    for (const Stroke& stroke : known.strokes) {
        EXPECT_EQ(stroke.values.force, 0);
        EXPECT_EQ(stroke.values.impulse, 0);
        EXPECT_EQ(stroke.values.power, 0);
        EXPECT_FALSE(stroke.efficiency);
    }
}

TEST(Strokes, WithoutFixesAndMountTheBowAndWhatHangsOnItAreUnknown) {
    const Simulation truth = simulate({.seed = 84, .style = Style::Slalom, .hasPosition = false});
    const MotionAnalysis analysis = analysed(truth.session, std::nullopt);
    EXPECT_TRUE(analysis.has(MotionFlag::UnknownMount));
    EXPECT_FALSE(analysis.isBowKnown);
    EXPECT_FALSE(analysis.hasForce());
    EXPECT_NEAR(static_cast<double>(analysis.strokes.size()),
                static_cast<double>(truth.strokes.size()), 6)
        << "that there are strokes is known";
    for (const Stroke& stroke : analysis.strokes) {
        EXPECT_EQ(stroke.values.hand, UnknownHand);
        EXPECT_GT(stroke.values.strokeRate, 0);
        EXPECT_EQ(stroke.values.waterPhase, 0);
        EXPECT_EQ(stroke.confidence, 0);
    }
    ASSERT_THAT(analysis.turns, Not(IsEmpty()));
    EXPECT_EQ(analysis.turns.front().values.aveRoll, 0) << "inside and outside may be swapped";
    EXPECT_GT(analysis.turns.front().values.rotSpeedPeak, 0.5);
    const SessionTotals totals = totalsOf(analysis);
    EXPECT_EQ(totals.left, std::nullopt);
    EXPECT_EQ(totals.waterPhase, std::nullopt);
    EXPECT_THAT(notesOf(analysis), Contains(HasSubstr("until you name it")));
}

TEST(Strokes, ValuesAreThoseOfTheirDefinitions) {
    const MotionAnalysis analysis = analysed(handMade(60, steadyPaddling));
    ASSERT_NEAR(static_cast<double>(analysis.strokes.size()), 80, 2);
    const Stroke& stroke = analysis.strokes[40];
    const smartStraight_v3& values = stroke.values;
    EXPECT_NEAR(values.strokeRate, 80, 2) << "each side counts one";
    EXPECT_NEAR(analysis.strokeRates[40], 80, 1);
    EXPECT_NEAR(values.waterPhase, 0.4, 0.06);
    EXPECT_NEAR(values.waterPhase + values.aerealPhase, 0.75, 0.02);
    EXPECT_NEAR(values.impulse, 45 * 0.75, 3) << "what the drag takes in a cycle";
    EXPECT_NEAR(values.force, values.impulse / values.waterPhase, 1e-9);
    EXPECT_NEAR(values.power, 45 * 3, 12);
    EXPECT_NEAR(values.aveDecce, -45.0 / 88, 0.08);
    EXPECT_GT(values.maxAcce, values.aveAcce);
    EXPECT_NEAR(stroke.speed, 3, 0.1);
    EXPECT_NEAR(*stroke.efficiency, 3 * 0.75, 0.12);
    EXPECT_FALSE(stroke.endOfBout);
    EXPECT_FALSE(stroke.steering);
    EXPECT_TRUE(analysis.strokes.back().endOfBout);
    for (const Stroke& one : analysis.strokes)
        EXPECT_EQ(one.values.hand, std::fmod(one.peakTime - 1000, 1.5) < 0.75 ? 0 : 1)
            << one.peakTime;
}

TEST(Strokes, TurnValuesAreThoseOfTheirDefinitions) {
    // Half a turn to the left in 2 s, leaning inside, the bow up, with a push at its end.
    const auto motion = [](double time) {
        HandMadeMotion m;
        const double part = (time - 20) / 2;
        m.speed = 2;
        if (part > 0 && part < 1) {
            const double wave = std::sin(std::numbers::pi * part);
            m.yawRate = std::numbers::pi * wave * wave;
            m.roll = -0.2;
            m.pitch = 0.1;
        }
        m.forward = time > 22 && time < 22.5 ? 1 : 0;
        return m;
    };
    const MotionAnalysis analysis = analysed(handMade(40, motion));
    ASSERT_EQ(analysis.turns.size(), 1U);
    const Turn& turn = analysis.turns.front();
    EXPECT_NEAR(turn.angle, std::numbers::pi, 0.05);
    EXPECT_NEAR(turn.peak, 1021, 0.05);
    EXPECT_NEAR(turn.values.rotSpeedPeak, std::numbers::pi, 0.1);
    EXPECT_NEAR(turn.values.aveRotSpeed, turn.angle / turn.values.rotationTime, 1e-9);
    EXPECT_NEAR(turn.values.rotationTime, 2, 0.5);
    EXPECT_NEAR(turn.values.pushOutPeak, 1, 0.1);
    EXPECT_GT(turn.values.aveRoll, 0.12) << "above 0 inside";
    EXPECT_GT(turn.values.avePitch, 0.06);
    const MotionProfile strict{.mount = Mount::TopToBow, .leastTurnAngle = 3.5};
    EXPECT_THAT(analyseMotion(handMade(40, motion), strict).turns, IsEmpty());
}

TEST(Strokes, ProfileComesFromTheAthlete) {
    EXPECT_EQ(profileOf({.name = "", .discipline = "K1W", .weight = 61}).mass, 74);
    EXPECT_EQ(profileOf({.name = "", .discipline = "Slalom", .weight = 0}).mass, 88);
    EXPECT_EQ(profileOf({.name = "", .discipline = "C1M"}).boat, BoatClass::Canoe);
    EXPECT_EQ(profileOf({.name = "", .discipline = "K1M"}).boat, BoatClass::Kayak);
}

} // namespace kavela::test
