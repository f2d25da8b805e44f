#include "boatmotion/strokes/hands.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double MostScore = 3;
constexpr double Doubt = 0.3;    // of a kick, by the square of what the boat turned itself
constexpr double OwnShare = 0.7; // of the turning between strokes that goes on during one
constexpr double NeighbourShare = 0.25;
constexpr double Emission = 1.2;
constexpr double ShareInTurn = 0.3;   // of what alternation says
constexpr double StraightRate = 0.15; // rad/s, below which nothing is turning
constexpr double TurningRate = 0.5;   // rad/s, above which all is
constexpr double LongestBout = 2;     // s, between strokes that know of each other

double valueAt(std::span<const double> values, double index) {
    const auto whole = std::min(static_cast<std::size_t>(index), values.size() - 1);
    const std::size_t next = std::min(whole + 1, values.size() - 1);
    return values[whole] + (index - static_cast<double>(whole)) * (values[next] - values[whole]);
}

/// The mean yaw acceleration while no blade is in the water, between two strokes of one bout.
std::optional<double> accelerationBetween(const StrokeView& view, const WaterPhase& before,
                                          const WaterPhase& after) {
    constexpr double Shortest = 2; // values
    const double length = after.catchAt - before.exitAt;
    if (length <= Shortest || length > LongestBout * Rate)
        return std::nullopt;
    return (valueAt(view.yawRate, after.catchAt) - valueAt(view.yawRate, before.exitAt)) / length;
}

struct Kicks {
    std::vector<double> blade; ///< how much each blade turned the bow, rad/s
    std::vector<double> own;   ///< how much the boat turned by itself meanwhile, rad/s
};

/// The change of yaw rate over each water phase, less what the boat does by itself: that goes by
/// its acceleration before and after.
Kicks kicks(const StrokeView& view, std::span<const WaterPhase> phases) {
    Kicks found;
    std::optional<double> before;
    for (std::size_t i = 0; i < phases.size(); ++i) {
        const auto after = i + 1 < phases.size()
                               ? accelerationBetween(view, phases[i], phases[i + 1])
                               : std::nullopt;
        const double acceleration =
            before && after ? (*before + *after) / 2 : before.value_or(after.value_or(0));
        found.own.push_back(acceleration * (phases[i].exitAt - phases[i].catchAt));
        found.blade.push_back(valueAt(view.yawRate, phases[i].exitAt) -
                              valueAt(view.yawRate, phases[i].catchAt) -
                              OwnShare * found.own.back());
        before = after;
    }
    return found;
}

/// The mean lean of each water phase.
std::vector<double> leans(const StrokeView& view, std::span<const WaterPhase> phases) {
    std::vector<double> lean(phases.size());
    for (std::size_t i = 0; i < phases.size(); ++i) {
        const auto begin = static_cast<std::size_t>(phases[i].catchAt);
        const auto end =
            std::min(static_cast<std::size_t>(phases[i].exitAt) + 1, view.series.size());
        for (std::size_t k = begin; k < end; ++k)
            lean[i] += view.series.roll[k] / static_cast<double>(end - begin);
    }
    return lean;
}

/// What alternates from stroke to stroke shows best against its neighbours.
std::vector<double> againstNeighbours(const std::vector<double>& values) {
    std::vector<double> result = values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            result[i] -= NeighbourShare * values[i - 1];
        if (i + 1 < values.size())
            result[i] -= NeighbourShare * values[i + 1];
    }
    return result;
}

double usualSize(const std::vector<double>& values) {
    std::vector<double> sizes;
    sizes.reserve(values.size());
    for (const double value : values)
        sizes.push_back(std::abs(value));
    return percentileOf(sizes, 0.5);
}

/// In units of their usual size, about 0: the sign keeps its meaning.
void standardise(std::vector<double>& values) {
    const double usual = usualSize(values);
    for (double& value : values)
        value = usual > 0 ? std::clamp(value / usual, -MostScore, MostScore) : 0;
}

double correlation(const std::vector<double>& a, const std::vector<double>& b) {
    double ab = 0;
    double aa = 0;
    double bb = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        ab += a[i] * b[i];
        aa += a[i] * a[i];
        bb += b[i] * b[i];
    }
    return aa > 0 && bb > 0 ? ab / std::sqrt(aa * bb) : 0;
}

/// Log-odds for a change of hands from one stroke to the next.
double changeOdds(const StrokeView& view, const WaterPhase& before, const WaterPhase& now) {
    if (view.series.time[now.peak] - view.series.time[before.peak] > LongestBout)
        return 0;
    if (view.profile.boat == BoatClass::Canoe)
        return std::log(0.10 / 0.90);
    const double turning = std::clamp(
        (std::abs(view.yawMean[now.peak]) - StraightRate) / (TurningRate - StraightRate), 0.0, 1.0);
    return std::log(0.85 / 0.15) * (1 - (1 - ShareInTurn) * turning);
}

/// The likeliest hands: 0 left, 1 right.
std::vector<std::uint8_t> likeliest(const StrokeView& view, std::span<const WaterPhase> phases,
                                    std::span<const double> scores) {
    std::vector<std::array<std::uint8_t, 2>> cameFrom(phases.size());
    std::array<double, 2> likelihood{0, 0};
    for (std::size_t i = 0; i < phases.size(); ++i) {
        const double change = i > 0 ? changeOdds(view, phases[i - 1], phases[i]) : 0;
        std::array<double, 2> next{};
        for (std::uint8_t hand = 0; hand < 2; ++hand) {
            const double kept = likelihood[hand] - change / 2;
            const double changed = likelihood[1U - hand] + change / 2;
            cameFrom[i][hand] = changed > kept ? static_cast<std::uint8_t>(1 - hand) : hand;
            next[hand] = std::max(kept, changed) + (hand == 1 ? 1 : -1) * Emission * scores[i];
        }
        likelihood = next;
    }
    std::vector<std::uint8_t> hands(phases.size());
    std::uint8_t hand = likelihood[1] > likelihood[0] ? 1 : 0;
    for (std::size_t i = phases.size(); i-- > 0;) {
        hands[i] = hand;
        hand = cameFrom[i][hand];
    }
    return hands;
}

} // namespace

std::vector<double> handScores(const StrokeView& view, std::span<const WaterPhase> phases) {
    const Kicks found = kicks(view, phases);
    const double usualKick = usualSize(found.blade);
    std::vector<double> score = found.blade;
    std::vector<double> lean = leans(view, phases);
    // A canoe's lean and kick stay on one side, where neighbours would cancel them.
    if (view.profile.boat == BoatClass::Kayak) {
        score = againstNeighbours(score);
        lean = againstNeighbours(lean);
    }
    standardise(score);
    standardise(lean);
    const double share = correlation(score, lean);
    for (std::size_t i = 0; i < score.size(); ++i) {
        // The more the boat turns by itself, the less a kick tells.
        const double disturbed = usualKick > 0 ? found.own[i] / usualKick : 0;
        score[i] = (score[i] + share * lean[i]) / (1 + Doubt * disturbed * disturbed);
    }
    return score;
}

void decideHands(const StrokeView& view, std::span<const WaterPhase> phases,
                 std::span<const double> scores, std::vector<Stroke>& strokes) {
    const std::vector<std::uint8_t> hands = likeliest(view, phases, scores);
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        strokes[i].values.hand = hands[i];
        strokes[i].confidence = std::tanh(Emission * std::abs(scores[i]));
    }
}

} // namespace kavela::strokes
