#include "boatmotion/strokes/hand_chain.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace kavela::strokes {

namespace {

constexpr double MostOdds = 5; // of one measure
constexpr int Rounds = 8;
constexpr double PriorStrokes = 12; // that turns are taken to be like straight paddling
constexpr double PriorChanges = 20;

/// The values of a model between straight on and in a turn.
double between(const std::array<double, 2>& values, double turning) {
    return values[0] + turning * (values[1] - values[0]);
}

/// The chance that the hand is another than that of the stroke before.
double changeAt(const HandLink& link, const HandModel& model) {
    const double change = link.isReal * between(model.change, link.turning);
    return 0.5 + link.follows * (change - 0.5);
}

/// The median size of the measures that are there.
double usualSize(std::span<const HandLink> links, std::size_t measure) {
    std::vector<double> sizes;
    for (const HandLink& link : links)
        if (link.variances[measure] >= 0)
            sizes.push_back(std::abs(link.measures[measure]));
    return percentileOf(sizes, 0.5);
}

/// Sums of one measure, weighted by how much a stroke belongs to a regime.
struct MeasureSums {
    double weight = 0;
    double signedSum = 0; ///< with the expected side
    double sum = 0;
    double sides = 0;
    double squares = 0;
    double errors = 0;
};

HandModel firstModel(std::span<const HandLink> links, bool changesMostly) {
    HandModel model;
    for (std::size_t m = 0; m < 2; ++m) {
        const double usual = usualSize(links, m);
        const bool isAnchor = m == 0;
        for (std::size_t r = 0; r < 2; ++r) {
            model.shift[m][r] = isAnchor ? 0.9 * usual : 0;
            model.spread[m][r] = usual * usual * (r == 0 ? 0.6 : 2);
        }
    }
    model.change = changesMostly ? std::array{0.85, 0.65} : std::array{0.1, 0.15};
    return model;
}

} // namespace

std::vector<double> handOdds(std::span<const HandLink> links, const HandModel& model) {
    std::vector<double> odds(links.size());
    for (std::size_t i = 0; i < links.size(); ++i)
        for (std::size_t m = 0; m < 2; ++m) {
            const HandLink& link = links[i];
            if (link.variances[m] < 0)
                continue;
            const double shift = between(model.shift[m], link.turning);
            const double spread = between(model.spread[m], link.turning) + link.variances[m];
            if (spread > 0)
                odds[i] += std::clamp(2 * shift * (link.measures[m] - model.offset[m]) / spread,
                                      -MostOdds, MostOdds);
        }
    return odds;
}

namespace {

/// Sweeps forward and backward over the chain; gives the chances of a right hand, and in `changes`
/// those of another hand than before.
std::vector<double> sweep(std::span<const HandLink> links, const HandModel& model,
                          std::span<const double> odds, std::vector<double>* changes) {
    const std::size_t size = links.size();
    std::vector<double> forward(size); // chance of right by what is up to here
    std::vector<double> own(size);
    for (std::size_t i = 0; i < size; ++i) {
        own[i] = 1 / (1 + std::exp(-odds[i]));
        const double change = i > 0 ? changeAt(links[i], model) : 0.5;
        const double last = i > 0 ? forward[i - 1] : 0.5;
        const double prior = last * (1 - change) + (1 - last) * change;
        const double right = prior * own[i];
        forward[i] = right / (right + (1 - prior) * (1 - own[i]));
    }
    std::vector<double> chances(size);
    if (changes)
        changes->assign(size, 0.5);
    double backward = 0.5; // likelihood of what follows, of right against left
    for (std::size_t i = size; i-- > 0;) {
        const double right = forward[i] * backward;
        chances[i] = right / (right + (1 - forward[i]) * (1 - backward));
        if (i == 0)
            break;
        const double change = changeAt(links[i], model);
        const double r = own[i] * backward;
        const double l = (1 - own[i]) * (1 - backward);
        if (changes) {
            const double f = forward[i - 1];
            const double other = change * (f * l + (1 - f) * r);
            const double same = (1 - change) * (f * r + (1 - f) * l);
            (*changes)[i] = other / (other + same);
        }
        const double ifRight = (1 - change) * r + change * l;
        const double ifLeft = (1 - change) * l + change * r;
        backward = ifRight / (ifRight + ifLeft);
    }
    return chances;
}

void learnMeasure(std::span<const HandLink> links, std::span<const double> chances,
                  bool changesMostly, std::size_t m, HandModel& model) {
    std::array<MeasureSums, 2> sums;
    const double usual = usualSize(links, m);
    const double most = 4 * usual;
    for (std::size_t i = 0; i < links.size(); ++i) {
        const HandLink& link = links[i];
        if (link.variances[m] < 0)
            continue;
        const double side = 2 * chances[i] - 1;
        const double value = std::clamp(link.measures[m] - model.offset[m], -most, most);
        for (std::size_t r = 0; r < 2; ++r) {
            // What is uncertain by itself says little about the paddler.
            const double weight = (r == 0 ? 1 - link.turning : link.turning) * link.isReal /
                                  (1 + link.variances[m] / std::max(usual * usual, 1e-30));
            sums[r].weight += weight;
            sums[r].signedSum += weight * side * value;
            sums[r].sum += weight * value;
            sums[r].sides += weight * side;
            sums[r].squares += weight * value * value;
            sums[r].errors += weight * link.variances[m];
        }
    }
    // A paddler of both hands shows the middle between them; one of one hand cannot.
    const double weight = sums[0].weight + sums[1].weight;
    if (m > 0 && changesMostly && weight > 0)
        model.offset[m] += (sums[0].sum - model.shift[m][0] * sums[0].sides + sums[1].sum -
                            model.shift[m][1] * sums[1].sides) /
                           weight;
    for (std::size_t r = 0; r < 2; ++r) {
        const double prior = r == 0 ? 1 : PriorStrokes;
        const double priorShift = model.shift[m][0];
        const double priorSpread = r == 0 ? model.spread[m][0] : 2 * model.spread[m][0];
        const MeasureSums& s = sums[r];
        double shift = (s.signedSum + prior * priorShift) / (s.weight + prior);
        if (m == 0)
            shift = std::max(shift, 0.1 * usual);
        const double squares = s.squares - 2 * shift * s.signedSum + shift * shift * s.weight;
        const double spread = (squares + prior * priorSpread) / (s.weight + prior);
        const double error = s.weight > 0 ? s.errors / s.weight : 0;
        model.shift[m][r] = shift;
        model.spread[m][r] = std::max(0.3 * spread, spread - error);
    }
}

void learnChanges(std::span<const HandLink> links, std::span<const double> changes,
                  bool changesMostly, HandModel& model) {
    const std::array<double, 2> usual =
        changesMostly ? std::array{0.9, 0.65} : std::array{0.08, 0.12};
    for (std::size_t r = 0; r < 2; ++r) {
        double weight = PriorChanges;
        double sum = PriorChanges * usual[r];
        for (std::size_t i = 1; i < links.size(); ++i) {
            const double own = (r == 0 ? 1 - links[i].turning : links[i].turning) *
                               links[i].follows * links[i].isReal;
            weight += own;
            sum += own * changes[i];
        }
        model.change[r] = std::clamp(sum / weight, 0.03, 0.97);
    }
}

} // namespace

namespace {

void learn(std::span<const HandLink> links, bool changesMostly, int rounds, HandModel& model) {
    for (int round = 0; round < rounds; ++round) {
        const std::vector<double> odds = handOdds(links, model);
        std::vector<double> changes;
        const std::vector<double> chances = sweep(links, model, odds, &changes);
        for (std::size_t m = 0; m < 2; ++m)
            learnMeasure(links, chances, changesMostly, m, model);
        learnChanges(links, changes, changesMostly, model);
    }
}

/// Whether the anchor agrees with the hands that a model finds.
bool isUpright(std::span<const HandLink> links, const HandModel& model) {
    const std::vector<double> odds = handOdds(links, model);
    const std::vector<double> chances = sweep(links, model, odds, nullptr);
    double vote = 0;
    for (std::size_t i = 0; i < links.size(); ++i) {
        const HandLink& link = links[i];
        const double spread = between(model.spread[0], link.turning) + link.variances[0];
        if (link.variances[0] >= 0 && spread > 0)
            vote += (2 * chances[i] - 1) * link.measures[0] / spread;
    }
    return vote >= 0;
}

} // namespace

HandModel learnHands(std::span<const HandLink> links, bool changesMostly) {
    HandModel model = firstModel(links, changesMostly);
    learn(links, changesMostly, Rounds, model);
    if (!isUpright(links, model)) {
        // The second measure took the lead with its sign the wrong way round.
        for (double& shift : model.shift[1])
            shift = -shift;
        learn(links, changesMostly, Rounds, model);
    }
    return model;
}

std::vector<double> rightHandChances(std::span<const HandLink> links, const HandModel& model,
                                     std::span<const double> odds) {
    return sweep(links, model, odds, nullptr);
}

std::vector<std::uint8_t> likeliestHands(std::span<const HandLink> links, const HandModel& model,
                                         std::span<const double> odds) {
    std::vector<std::array<std::uint8_t, 2>> cameFrom(links.size());
    std::array<double, 2> likelihood{0, 0};
    for (std::size_t i = 0; i < links.size(); ++i) {
        const double change = i > 0 ? changeAt(links[i], model) : 0.5;
        std::array<double, 2> next{};
        for (std::uint8_t hand = 0; hand < 2; ++hand) {
            const double kept = likelihood[hand] + std::log(1 - change);
            const double changed = likelihood[1U - hand] + std::log(change);
            cameFrom[i][hand] = changed > kept ? static_cast<std::uint8_t>(1 - hand) : hand;
            next[hand] = std::max(kept, changed) + (hand == 1 ? 0.5 : -0.5) * odds[i];
        }
        likelihood = next;
    }
    std::vector<std::uint8_t> hands(links.size());
    std::uint8_t hand = likelihood[1] > likelihood[0] ? 1 : 0;
    for (std::size_t i = links.size(); i-- > 0;) {
        hands[i] = hand;
        hand = cameFrom[i][hand];
    }
    return hands;
}

} // namespace kavela::strokes
