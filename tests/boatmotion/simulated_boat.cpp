#include "boatmotion/simulated_boat.h"

#include <algorithm>

namespace kavela::test {

namespace {

using std::numbers::pi;

constexpr double Tick = 1.0 / StatesPerSecond;

/// A sea as a sum of waves of chance.
class Waves {
public:
    Waves(double rms, double slowest, double fastest, Chance& chance) {
        constexpr int Count = 14;
        for (int i = 0; i < Count; ++i)
            m_waves.push_back({2 * pi * chance.between(slowest, fastest), chance.between(0, 2 * pi),
                               rms * std::sqrt(2.0 / Count)});
    }
    [[nodiscard]] double at(double time) const {
        double sum = 0;
        for (const Wave& wave : m_waves)
            sum += wave.height * std::sin(wave.turning * time + wave.phase);
        return sum;
    }

private:
    struct Wave {
        double turning;
        double phase;
        double height;
    };
    std::vector<Wave> m_waves;
};

double surgeOf(Sea sea) {
    return sea == Sea::Calm ? 0 : sea == Sea::Light ? 0.12 : 0.30; // m/s² rms
}

class Hull {
public:
    Hull(const Scenario& scenario, Voyage& voyage, Chance& chance)
        : m_voyage(voyage),
          m_habits(Habits::of(scenario)),
          m_seconds(scenario.seconds),
          m_surge(surgeOf(scenario.sea), 0.25, 0.9, chance),
          m_rocking(0.006 + 0.12 * surgeOf(scenario.sea), 0.3, 0.9, chance),
          m_nodding(0.004 + 0.06 * surgeOf(scenario.sea), 0.3, 1.1, chance),
          m_yawing(0.01 + 0.15 * surgeOf(scenario.sea), 0.15, 0.7, chance),
          m_heaving(0.05 + surgeOf(scenario.sea), 0.3, 1.1, chance),
          m_yawArm(chance.between(0.17, 0.28)),
          m_yawInertia(chance.between(20, 26)),
          m_leanPerPull(chance.between(0.03, 0.07) * (chance.hits(0.7) ? 1 : -1)),
          m_bodySway(scenario.isHostile ? 0.25 : chance.between(0.02, 0.12)),
          m_swayPhase(chance.between(0, 2 * pi)) {
        m_yawArm *= m_habits.kick;
        if (m_habits.lean != 0)
            m_leanPerPull = m_habits.lean;
        // A double is as heavy as two; its hull is longer.
        m_yawInertia *= m_habits.crew > 1 ? 2.6 : 1;
        voyage.mass = m_habits.crew > 1 ? 165 : 88;
        voyage.drag = 5;
        voyage.impulses.resize(voyage.plan.strokes.size());
        voyage.works.resize(voyage.plan.strokes.size());
    }

    void advance() {
        m_state.time += Tick;
        const double time = m_state.time;
        const Blade blade = bladeAt(time);
        const double turnRate = turnRateAt(time);
        const double turning = std::min(1.0, std::abs(turnRate));
        push(time, blade, turning);
        yaw(time, m_habits.kickDelay == 0 ? blade : bladeNear(time - m_habits.kickDelay), turnRate);
        tilt(time, m_habits.leanLead == 0 ? blade : bladeNear(time + m_habits.leanLead), turnRate);
        m_state.heave = m_heaving.at(time);
        // The hull slides: it is pulled inside less than its path would ask.
        m_state.side = 0.7 * m_state.speed * m_state.rotation[2];
        m_state.north += m_state.speed * std::cos(m_state.heading) * Tick;
        m_state.east -= m_state.speed * std::sin(m_state.heading) * Tick;
        m_state.blade = blade.side * blade.share;
        m_voyage.states.push_back(m_state);
    }

private:
    struct Blade {
        double force = 0;
        double share = 0; ///< of the stroke's greatest force
        double side = 0;  ///< 1 left, -1 right
        double leverage = 0;
        double phase = 0; ///< of the whole stroke, for the body's sway
    };

    Blade bladeAt(double time) {
        auto& strokes = m_voyage.plan.strokes;
        while (m_next < strokes.size() && strokes[m_next].begin + strokes[m_next].water < time)
            ++m_next;
        if (m_next >= strokes.size())
            return {};
        const PlannedStroke& stroke = strokes[m_next];
        const double force = m_habits.crew * stroke.force(time);
        m_voyage.impulses[m_next] += force * Tick;
        m_voyage.works[m_next] += force * m_state.speed * Tick;
        const double phase = std::max(0.0, (time - stroke.begin) / stroke.water);
        return {force, force / stroke.peak / m_habits.crew, stroke.hand == 0 ? 1.0 : -1.0,
                stroke.leverage, phase};
    }

    /// Force and side of whatever stroke there is at a time near the present.
    [[nodiscard]] Blade bladeNear(double time) const {
        const auto& strokes = m_voyage.plan.strokes;
        for (std::size_t i = m_next < 1 ? 0 : m_next - 1; i < std::min(m_next + 2, strokes.size());
             ++i)
            if (time > strokes[i].begin && time < strokes[i].begin + strokes[i].water) {
                const double force = strokes[i].force(time);
                return {m_habits.crew * force, force / strokes[i].peak,
                        strokes[i].hand == 0 ? 1.0 : -1.0, strokes[i].leverage, 0};
            }
        return {};
    }

    double turnRateAt(double time) {
        auto& turns = m_voyage.plan.turns;
        while (m_turn < turns.size() && turns[m_turn].begin + turns[m_turn].seconds < time)
            ++m_turn;
        return m_turn < turns.size() ? turns[m_turn].rate(time) : 0;
    }

    void push(double time, const Blade& blade, double turning) {
        const double speed = m_state.speed;
        // Turns cost speed; their drag is not the one that a profile knows.
        const double drag = m_voyage.drag * (1 + 0.3 * turning) * speed * std::abs(speed);
        const double sway =
            blade.force > 0 ? m_bodySway * std::sin(2 * pi * blade.phase + m_swayPhase) : 0;
        m_state.pull = (blade.force - drag) / m_voyage.mass + m_surge.at(time) + sway;
        m_state.speed += m_state.pull * Tick;
    }

    void yaw(double time, const Blade& blade, double turnRate) {
        // The left blade pushes the bow to the right.
        const double torque = -blade.side * m_yawArm * blade.leverage * blade.force;
        m_wobble += (torque / m_yawInertia - m_habits.yawDecay * m_wobble) * Tick;
        turn(2, m_wobble + turnRate + m_yawing.at(time));
        m_state.heading += m_state.rotation[2] * Tick;
    }

    void tilt(double time, const Blade& blade, double turnRate) {
        // A paddler leans to the blade or away from it, and into turns; the hull follows late.
        const double lean = -m_leanPerPull * blade.side * blade.share - 0.12 * turnRate;
        m_lean += (lean - m_lean) * Tick / m_habits.leanDelay;
        const double nod = 0.012 * blade.share;
        m_nod += (nod - m_nod) * Tick / 0.15;
        const double drift = m_habits.rollDrift * std::sin(4 * time / m_seconds);
        const double roll = m_lean + m_rocking.at(time) + drift;
        const double pitch = m_nod + m_nodding.at(time);
        turn(0, (roll - m_state.roll) / Tick);
        turn(1, -(pitch - m_state.pitch) / Tick); // about the left axis the bow goes down
        m_state.roll = roll;
        m_state.pitch = pitch;
    }

    void turn(std::size_t axis, double rate) {
        m_state.spin[axis] = (rate - m_state.rotation[axis]) / Tick;
        m_state.rotation[axis] = rate;
    }

    Voyage& m_voyage;
    Habits m_habits;
    double m_seconds;
    Waves m_surge;
    Waves m_rocking;
    Waves m_nodding;
    Waves m_yawing;
    Waves m_heaving;
    double m_yawArm;
    double m_yawInertia;
    double m_leanPerPull;
    double m_bodySway;
    double m_swayPhase;
    BoatState m_state;
    double m_wobble = 0;
    double m_lean = 0;
    double m_nod = 0;
    std::size_t m_next = 0;
    std::size_t m_turn = 0;
};

} // namespace

Voyage sail(const Scenario& scenario, Chance& chance) {
    Voyage voyage;
    if (!scenario.isIdle)
        voyage.plan = planOf(scenario, chance);
    Hull hull(scenario, voyage, chance);
    const auto count = static_cast<std::size_t>(scenario.seconds * StatesPerSecond);
    voyage.states.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        hull.advance();
    voyage.states.front().spin = {}; // it began in the middle of a wave
    return voyage;
}

} // namespace kavela::test
