#include "statistics/two_way_fit.h"

#include "statistics/intervals.h"

#include <boost/math/distributions/chi_squared.hpp>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace kavela {

namespace {

using Numbers = std::vector<double>;

double productOf(const Numbers& a, const Numbers& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

/// The equations of the fit: value = athlete's effect + phase's effect. Unknowns are the athletes'
/// effects, then the phases', each times the root of its runs, which balances those of one run
/// against those of hundreds.
class TwoWayTable {
public:
    TwoWayTable(std::span<const TwoWayValue> values, const TwoWayFit& fit)
        : m_values(values),
          m_athletes(fit.athletes.size()),
          m_scales(fit.athletes.size() + fit.phases.size(), 0) {
        for (std::size_t i = 0; i < m_scales.size(); ++i) {
            const std::size_t runs =
                i < m_athletes ? fit.athletes[i].runs : fit.phases[i - m_athletes].runs;
            m_scales[i] = runs > 0 ? 1 / std::sqrt(static_cast<double>(runs)) : 0;
        }
    }

    [[nodiscard]] Numbers effectsOf(const Numbers& unknowns) const {
        Numbers effects(unknowns.size());
        std::ranges::transform(unknowns, m_scales, effects.begin(), std::multiplies<>());
        return effects;
    }

    /// The left sides of the equations.
    [[nodiscard]] Numbers sums(const Numbers& unknowns) const {
        const Numbers effects = effectsOf(unknowns);
        Numbers sides;
        sides.reserve(m_values.size());
        for (const TwoWayValue& value : m_values)
            sides.push_back(effects[value.athlete] + effects[m_athletes + value.phase]);
        return sides;
    }

    /// How much is left of the equations in the direction of each unknown.
    [[nodiscard]] Numbers slopes(const Numbers& residuals) const {
        Numbers slopes(m_scales.size(), 0);
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            slopes[m_values[i].athlete] += residuals[i];
            slopes[m_athletes + m_values[i].phase] += residuals[i];
        }
        return effectsOf(slopes);
    }

    [[nodiscard]] std::size_t unknowns() const { return m_scales.size(); }

private:
    std::span<const TwoWayValue> m_values;
    std::size_t m_athletes = 0;
    Numbers m_scales;
};

void addTimes(Numbers& sum, double factor, const Numbers& other) {
    for (std::size_t i = 0; i < sum.size(); ++i)
        sum[i] += factor * other[i];
}

/// The least squares of the equations by conjugate gradients (Hestenes, Stiefel, 1952): every step
/// passes over the runs once, so a season of all files costs no more than reading it, and what is
/// not determined, one level in each connected part, stays where it was.
Numbers leastSquares(const TwoWayTable& table, Numbers rest) {
    constexpr double Closeness = 4e-30; // of squares: what doubles can tell of sums of the rest
    Numbers unknowns(table.unknowns(), 0);
    Numbers slopes = table.slopes(rest);
    Numbers direction = slopes;
    double steepness = productOf(slopes, slopes);
    const double enough = productOf(rest, rest) * Closeness;
    for (std::size_t step = 0; step < 4 * table.unknowns() && steepness > enough; ++step) {
        const Numbers along = table.sums(direction);
        const double length = productOf(along, along);
        if (!(length > 0))
            break;
        addTimes(unknowns, steepness / length, direction);
        addTimes(rest, -steepness / length, along);
        slopes = table.slopes(rest);
        const double before = std::exchange(steepness, productOf(slopes, slopes));
        for (std::size_t i = 0; i < direction.size(); ++i)
            direction[i] = slopes[i] + steepness / before * direction[i];
    }
    return unknowns;
}

/// Fits what the first fit left by rounding once more.
Numbers refinedLeastSquares(const TwoWayTable& table, const Numbers& sides) {
    Numbers unknowns(table.unknowns(), 0);
    for (int turn = 0; turn < 3; ++turn) {
        Numbers rest = sides;
        addTimes(rest, -1, table.sums(unknowns));
        addTimes(unknowns, 1, leastSquares(table, std::move(rest)));
    }
    return unknowns;
}

/// Athletes and phases that hang together, each led to one of its part.
class ConnectedParts {
public:
    explicit ConnectedParts(std::size_t members) : m_leaders(members) {
        std::iota(m_leaders.begin(), m_leaders.end(), 0U);
    }

    std::size_t leaderOf(std::size_t member) {
        while (m_leaders[member] != member)
            member = m_leaders[member] = m_leaders[m_leaders[member]];
        return member;
    }

    void join(std::size_t a, std::size_t b) { m_leaders[leaderOf(a)] = leaderOf(b); }

private:
    std::vector<std::size_t> m_leaders;
};

void countRuns(std::span<const TwoWayValue> values, TwoWayFit& fit) {
    for (const TwoWayValue& value : values) {
        if (!std::isfinite(value.value))
            throw std::invalid_argument("a value to be fitted is not finite");
        fit.athletes.resize(std::max(fit.athletes.size(), value.athlete + 1));
        fit.phases.resize(std::max(fit.phases.size(), value.phase + 1));
        ++fit.athletes[value.athlete].runs;
        ++fit.phases[value.phase].runs;
    }
}

void numberParts(std::span<const TwoWayValue> values, TwoWayFit& fit) {
    const std::size_t athletes = fit.athletes.size();
    ConnectedParts parts(athletes + fit.phases.size());
    for (const TwoWayValue& value : values)
        parts.join(value.athlete, athletes + value.phase);
    constexpr std::size_t NoNumber = static_cast<std::size_t>(-1);
    std::vector<std::size_t> numbers(athletes + fit.phases.size(), NoNumber);
    const auto number = [&](TwoWayEffect& effect, std::size_t member) {
        if (effect.runs == 0)
            return;
        std::size_t& part = numbers[parts.leaderOf(member)];
        if (part == NoNumber)
            part = fit.parts++;
        effect.part = part;
    };
    for (std::size_t i = 0; i < athletes; ++i)
        number(fit.athletes[i], i);
    for (std::size_t i = 0; i < fit.phases.size(); ++i)
        number(fit.phases[i], athletes + i);
}

/// What all values have in common is taken out before, so that no digit is lost to it.
double middleOf(std::span<const TwoWayValue> values) {
    double sum = 0;
    for (const TwoWayValue& value : values)
        sum += value.value;
    return sum / static_cast<double>(values.size());
}

/// Moves the level of each part from its athletes to its phases.
void levelAthletes(TwoWayFit& fit) {
    Numbers levels(fit.parts, 0);
    Numbers members(fit.parts, 0);
    for (const TwoWayEffect& athlete : fit.athletes)
        if (athlete.runs > 0) {
            levels[athlete.part] += athlete.effect;
            ++members[athlete.part];
        }
    for (TwoWayEffect& athlete : fit.athletes)
        if (athlete.runs > 0)
            athlete.effect -= levels[athlete.part] / members[athlete.part];
    for (TwoWayEffect& phase : fit.phases)
        if (phase.runs > 0)
            phase.effect += levels[phase.part] / members[phase.part];
}

void fitEffects(std::span<const TwoWayValue> values, TwoWayFit& fit) {
    const double middle = middleOf(values);
    Numbers sides;
    for (const TwoWayValue& value : values)
        sides.push_back(value.value - middle);
    const TwoWayTable table(values, fit);
    const Numbers unknowns = refinedLeastSquares(table, sides);
    const Numbers effects = table.effectsOf(unknowns);
    fit.residuals = std::move(sides);
    addTimes(fit.residuals, -1, table.sums(unknowns));
    for (std::size_t i = 0; i < fit.athletes.size(); ++i)
        fit.athletes[i].effect = effects[i];
    for (std::size_t i = 0; i < fit.phases.size(); ++i)
        if (fit.phases[i].runs > 0)
            fit.phases[i].effect = middle + effects[fit.athletes.size() + i];
    levelAthletes(fit);
}

std::size_t degreesOf(const TwoWayFit& fit, std::size_t runs) {
    const auto takesPart = [](const TwoWayEffect& effect) { return effect.runs > 0; };
    const auto athletes = std::ranges::count_if(fit.athletes, takesPart);
    const auto phases = std::ranges::count_if(fit.phases, takesPart);
    return runs + fit.parts - static_cast<std::size_t>(athletes + phases);
}

void fillSpreads(std::span<const TwoWayValue> values, TwoWayFit& fit) {
    constexpr double CommonDegrees = 10;
    const auto degrees = static_cast<double>(fit.degrees);
    const double variance = productOf(fit.residuals, fit.residuals) / degrees;
    fit.spread = std::sqrt(variance);
    if (values.size() >= LeastValues) {
        constexpr double Outside = (1 - Confidence) / 2;
        const boost::math::chi_squared_distribution<double> chi(degrees);
        fit.interval = {std::sqrt(degrees * variance / quantile(complement(chi, Outside))),
                        std::sqrt(degrees * variance / quantile(chi, Outside))};
    }
    Numbers squares(fit.athletes.size(), 0);
    for (std::size_t i = 0; i < values.size(); ++i)
        squares[values[i].athlete] += fit.residuals[i] * fit.residuals[i];
    for (std::size_t i = 0; i < fit.athletes.size(); ++i) {
        const double share = static_cast<double>(fit.athletes[i].runs) * degrees /
                             static_cast<double>(values.size());
        const double shrunk = (squares[i] + CommonDegrees * variance) / (share + CommonDegrees);
        fit.spreads.push_back(share > 0
                                  ? AthleteSpread{std::sqrt(squares[i] / share), std::sqrt(shrunk)}
                                  : AthleteSpread{});
    }
}

} // namespace

TwoWayFit twoWayFit(std::span<const TwoWayValue> values) {
    TwoWayFit fit;
    countRuns(values, fit);
    if (values.empty())
        return fit;
    numberParts(values, fit);
    fitEffects(values, fit);
    fit.degrees = degreesOf(fit, values.size());
    if (fit.degrees > 0)
        fillSpreads(values, fit);
    return fit;
}

double variationOf(double spread) {
    return 100 * std::expm1(spread / 100);
}

} // namespace kavela
