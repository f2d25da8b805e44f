#include "boatmotion/simulated_paddler.h"

#include <algorithm>

namespace kavela::test {

namespace {

class Planner {
public:
    Planner(const Scenario& scenario, Chance& chance)
        : m_scenario(scenario),
          m_habits(Habits::of(scenario)),
          m_chance(chance),
          m_isSlalom(scenario.style == Style::Slalom),
          m_rise(chance.between(0.9, 1.5)),
          m_fall(chance.between(1.0, 1.8)),
          m_strength(chance.between(0.85, 1.15)),
          m_asymmetry(scenario.isHostile ? 0.15 : chance.between(-0.1, 0.1)),
          m_hand(chance.hits(0.5) ? 1 : 0) {}

    Plan plan() {
        double time = 3 + m_chance.between(0, 1);
        m_nextTurn = time + m_chance.between(4, 8);
        double endOfBout = time + m_chance.between(25, 45);
        while (time < m_scenario.seconds - 3) {
            if (m_isSlalom && time >= m_nextTurn)
                addTurn(time);
            time += addStroke(time);
            if (time > endOfBout && !isTurning(time)) {
                time += m_chance.between(3, 6); // a glide
                m_ferry = m_habits.ferrying > 0 && m_chance.hits(m_habits.ferrying);
                endOfBout = time + m_chance.between(25, 45);
            }
        }
        return std::move(m_plan);
    }

private:
    [[nodiscard]] bool isTurning(double time) const {
        return !m_plan.turns.empty() &&
               time < m_plan.turns.back().begin + m_plan.turns.back().seconds;
    }

    void addTurn(double time) {
        constexpr double Degree = std::numbers::pi / 180;
        const double angle = m_chance.between(85, 200) * Degree;
        const double seconds = angle / m_chance.between(0.9, 1.6);
        m_plan.turns.push_back(
            {time, seconds, m_chance.hits(0.5) ? angle : -angle, m_habits.turnShape});
        m_nextTurn = time + seconds + m_chance.between(4, 9);
    }

    /// Gives the time to the next one.
    double addStroke(double time) {
        const double mean = 60 / m_scenario.strokesPerMinute;
        const double jitter = m_chance.bell(m_isSlalom ? m_habits.jitter : 0.04);
        const double cycle = mean * std::clamp(1 + jitter, 0.6, 1.6);
        PlannedStroke stroke;
        stroke.begin = time;
        stroke.inTurn = isTurning(time);
        stroke.water = std::min((m_habits.waterShare + m_chance.between(-0.04, 0.06)) * cycle,
                                m_chance.between(0.62, 0.74));
        stroke.peak = peakFor(mean) * (1 + m_chance.bell(m_isSlalom ? 0.15 : 0.08));
        stroke.dip = m_scenario.isHostile ? m_chance.between(0.2, 0.5) : 0;
        stroke.rise = m_rise * (1 + m_chance.bell(0.08));
        stroke.fall = m_fall * (1 + m_chance.bell(0.08));
        m_hand = nextHand(stroke.inTurn);
        stroke.hand = m_hand;
        stroke.peak *= 1 + (m_hand == 1 ? m_asymmetry : -m_asymmetry);
        if (stroke.inTurn) {
            // A sweep: it turns the boat more than it drives it.
            stroke.peak *= m_chance.between(0.5, 0.9);
            stroke.leverage = m_chance.between(1.2, 1.2 + (m_habits.sweep - 1) * 1.4);
        } else {
            stroke.leverage = 1 + m_chance.bell(m_isSlalom ? 0.25 : 0.1);
        }
        m_plan.strokes.push_back(stroke);
        return cycle;
    }

    /// In a ferry one hand keeps the bow up the current: it works mostly.
    [[nodiscard]] bool isFerrying() const { return m_ferry; }

    /// Faster strokes are harder, up to a point.
    [[nodiscard]] double peakFor(double cycle) const {
        return m_strength * std::clamp(120 + 1.0 * (60 / cycle - 40), 110.0, 200.0);
    }

    int nextHand(bool inTurn) {
        if (m_scenario.isCanoe)
            return m_chance.hits(m_isSlalom ? 0.12 : 0.04) ? 1 - m_hand : m_hand;
        if (inTurn && m_habits.outside > 0 && m_chance.hits(m_habits.outside))
            return m_plan.turns.back().angle > 0 ? 1 : 0;
        const double repeats = inTurn         ? m_habits.repeats
                               : isFerrying() ? 0.5
                               : m_isSlalom   ? 0.08
                                              : 0;
        return m_chance.hits(repeats) ? m_hand : 1 - m_hand;
    }

    const Scenario& m_scenario;
    Habits m_habits;
    Chance& m_chance;
    bool m_isSlalom;
    double m_rise;
    double m_fall;
    double m_strength;
    double m_asymmetry;
    int m_hand;
    double m_nextTurn = 0;
    bool m_ferry = false;
    Plan m_plan;
};

} // namespace

Habits Habits::of(const Scenario& scenario) {
    if (!scenario.isVaried)
        return {};
    // A chance of its own: recordings that are not varied stay what they are.
    Chance chance(scenario.seed * 104729 + 71);
    Habits habits;
    habits.kick = chance.between(0.5, 1.6);
    habits.kickDelay = chance.between(-0.06, 0.06);
    habits.yawDecay = std::exp(chance.between(0, 3));
    habits.lean = chance.between(0.008, 0.08) * (chance.hits(0.7) ? 1 : -1);
    habits.leanDelay = chance.between(0.05, 0.2);
    habits.leanLead = chance.between(-0.05, 0.12);
    habits.repeats = chance.between(0.05, 0.45);
    habits.outside = chance.hits(0.6) ? chance.between(0.1, 0.6) : 0;
    habits.sweep = chance.between(1.1, 2);
    habits.turnShape = chance.between(1, 3);
    habits.waterShare = chance.between(0.45, 0.64);
    habits.jitter = chance.between(0.06, 0.16);
    habits.rollDrift = chance.between(0, 0.1);
    habits.ferrying = chance.hits(0.3) ? 0.4 : 0;
    habits.crew = chance.hits(0.15) ? 2 : 1;
    return habits;
}

double PlannedStroke::force(double time) const {
    const double part = (time - begin) / water;
    if (part <= 0 || part >= 1)
        return 0;
    const double top = rise / (rise + fall);
    const double greatest = std::pow(top, rise) * std::pow(1 - top, fall);
    const double fromMiddle = (part - 0.5) / 0.12;
    return peak * std::pow(part, rise) * std::pow(1 - part, fall) / greatest *
           (1 - dip * std::exp(-fromMiddle * fromMiddle));
}

double PlannedTurn::rate(double time) const {
    const double part = (time - begin) / seconds;
    if (part <= 0 || part >= 1)
        return 0;
    const double wave = std::sin(std::numbers::pi * part);
    if (shape == 2)
        return 2 * angle / seconds * wave * wave;
    const double area = std::tgamma((shape + 1) / 2) / std::tgamma(shape / 2 + 1) /
                        std::sqrt(std::numbers::pi); // of the wave over its length
    return angle / seconds * std::pow(wave, shape) / area;
}

Plan planOf(const Scenario& scenario, Chance& chance) {
    return Planner(scenario, chance).plan();
}

} // namespace kavela::test
