#include "boatmotion/strokes/hands.h"

#include "boatmotion/strokes/filters.h"
#include "boatmotion/strokes/side_measures.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double StraightRate = 0.15;   // rad/s, below which nothing is turning
constexpr double HandTurningRate = 0.5; // rad/s, above which all is
constexpr double MostScore = 3;
constexpr double Emission = 1.2; // half the log-odds of a score of 1

/// How fast hulls go back, 1/s: bows from a blade's kick, and the lean from its pull.
constexpr std::array KickDecays{1.0, 2.0, 4.0, 8.0, 16.0, 32.0};
constexpr std::array LeanDecays{4.0, 8.0, 16.0, 32.0};

/// Bodies and blades do not move just with the force that the hull feels, s.
constexpr std::array Delays{-0.06, 0.0, 0.06};

} // namespace

HandEvidence handEvidence(const StrokeView& view, std::span<const WaterPhase> phases) {
    const SideMeasures kicks = sideMeasures(view, phases, view.series.yawRate, KickDecays, Delays);
    const SideMeasures leans = sideMeasures(view, phases, view.series.roll, LeanDecays, Delays);
    std::vector<double> gaps;
    for (std::size_t i = 1; i < phases.size(); ++i)
        gaps.push_back(view.series.time[phases[i].peak] - view.series.time[phases[i - 1].peak]);
    HandEvidence evidence;
    for (std::size_t i = 0; i < phases.size(); ++i) {
        HandLink link;
        const Measure& kick = kicks.strokes[i];
        const Measure& lean = leans.strokes[i];
        link.measures = {kick.value, lean.value};
        link.variances = {kick.isKnown ? kick.variance : -1, lean.isKnown ? lean.variance : -1};
        link.turning = std::clamp((std::abs(view.yawMean[phases[i].peak]) - StraightRate) /
                                      (HandTurningRate - StraightRate),
                                  0.0, 1.0);
        if (i > 0) {
            std::array<double, 9> some{};
            std::size_t count = 0;
            for (std::size_t k = i > 5 ? i - 5 : 0; k < std::min(i + 4, gaps.size()); ++k)
                some[count++] = gaps[k];
            const double usual = percentileOf(std::span(some).first(count), 0.5);
            link.follows = std::clamp((1.7 - gaps[i - 1] / usual) / 0.3, 0.0, 1.0);
        }
        evidence.links.push_back(link);
    }
    evidence.model = learnHands(evidence.links, view.profile.boat == BoatClass::Kayak);
    evidence.scores = handOdds(evidence.links, evidence.model);
    for (double& score : evidence.scores)
        score = std::clamp(score / (2 * Emission), -MostScore, MostScore);
    return evidence;
}

void decideHands(const HandEvidence& evidence, std::span<const double> scores,
                 std::vector<Stroke>& strokes) {
    std::vector<double> odds(scores.begin(), scores.end());
    for (double& one : odds)
        one *= 2 * Emission;
    const std::vector<std::uint8_t> hands = likeliestHands(evidence.links, evidence.model, odds);
    const std::vector<double> chances = rightHandChances(evidence.links, evidence.model, odds);
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        strokes[i].values.hand = hands[i] == 0 ? LeftHand : RightHand;
        strokes[i].confidence = std::abs(2 * chances[i] - 1);
    }
}

} // namespace kavela::strokes
