#include "boatmotion/simulator.h"

#include "boatmotion/simulated_boat.h"

#include <algorithm>

namespace kavela::test {

namespace {

using std::numbers::pi;

constexpr double StandardGravity = 9.80665; // m/s²

/// Which way a device's axes point, in boat axes.
struct Orientation {
    std::array<Axes, 3> device;

    [[nodiscard]] Axes toDevice(const Axes& boat) const {
        Axes result{};
        for (std::size_t r = 0; r < 3; ++r)
            for (std::size_t c = 0; c < 3; ++c)
                result[r] += device[r][c] * boat[c];
        return result;
    }
};

Orientation fromQuaternion(double w, double x, double y, double z) {
    const double n = std::sqrt(w * w + x * x + y * y + z * z);
    w /= n;
    x /= n;
    y /= n;
    z /= n;
    return {{Axes{1 - 2 * (y * y + z * z), 2 * (x * y - z * w), 2 * (x * z + y * w)},
             Axes{2 * (x * y + z * w), 1 - 2 * (x * x + z * z), 2 * (y * z - x * w)},
             Axes{2 * (x * z - y * w), 2 * (y * z + x * w), 1 - 2 * (x * x + y * y)}}};
}

/// A phone that lies on its back has its top to the bow, or to the stern.
Orientation orientationOf(PhoneMount mount, Chance& chance) {
    switch (mount) {
    case PhoneMount::Forward:
        return {{Axes{0, -1, 0}, Axes{1, 0, 0}, Axes{0, 0, 1}}};
    case PhoneMount::Backward:
        return {{Axes{0, 1, 0}, Axes{-1, 0, 0}, Axes{0, 0, 1}}};
    case PhoneMount::Any:
        break;
    }
    const double w = chance.bell(1);
    const double x = chance.bell(1);
    const double y = chance.bell(1);
    return fromQuaternion(w, x, y, chance.bell(1));
}

Axes cross(const Axes& a, const Axes& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// A phone in the boat.
class Phone {
public:
    Phone(const Scenario& scenario, Chance& chance)
        : m_orientation(orientationOf(scenario.mount, chance)),
          m_place{chance.between(-0.6, 0.6), chance.between(-0.12, 0.12), chance.between(0, 0.2)},
          m_bias{chance.bell(0.006), chance.bell(0.006), chance.bell(0.006)},
          m_noise(scenario.noise),
          m_chance(chance) {
        if (scenario.isVaried)
            m_place[0] *= 1.6; // far from the middle of the boat
    }

    /// Turns about an axis of chance; what it feels turns with it.
    void slip(double angle) {
        const double half = angle / 2;
        const Axes axis{m_chance.bell(1), m_chance.bell(1), m_chance.bell(1)};
        const double size =
            std::sin(half) / std::sqrt(axis[0] * axis[0] + axis[1] * axis[1] + axis[2] * axis[2]);
        const Orientation turned =
            fromQuaternion(std::cos(half), size * axis[0], size * axis[1], size * axis[2]);
        for (Axes& row : m_orientation.device)
            row = turned.toDevice(row);
    }

    boatmotionrawdata_v5 sample(const BoatState& boat, double timestamp) {
        const Axes swing = cross(boat.rotation, cross(boat.rotation, m_place));
        const Axes sway = cross(boat.spin, m_place);
        const Axes felt =
            m_orientation.toDevice({boat.pull + swing[0] + sway[0], boat.side + swing[1] + sway[1],
                                    boat.heave + swing[2] + sway[2]});
        const Axes rotation = m_orientation.toDevice(boat.rotation);
        const double level = std::cos(boat.pitch);
        const Axes down = m_orientation.toDevice(
            {-std::sin(boat.pitch), -level * std::sin(boat.roll), -level * std::cos(boat.roll)});
        boatmotionrawdata_v5 sample;
        sample.timestamp = timestamp;
        sample.acceleration = {felt[0] / StandardGravity + m_bias[0] + m_chance.bell(m_noise),
                               felt[1] / StandardGravity + m_bias[1] + m_chance.bell(m_noise),
                               felt[2] / StandardGravity + m_bias[2] + m_chance.bell(m_noise)};
        sample.rotationRate = {rotation[0] + m_chance.bell(0.01), rotation[1] + m_chance.bell(0.01),
                               rotation[2] + m_chance.bell(0.01)};
        sample.gravity = {down[0] + m_chance.bell(0.002), down[1] + m_chance.bell(0.002),
                          down[2] + m_chance.bell(0.002)};
        sample.attitude = {std::asin(std::clamp(-down[1], -1.0, 1.0)),
                           std::atan2(down[0], -down[2]), std::remainder(boat.heading, 2 * pi)};
        return sample;
    }

private:
    Orientation m_orientation;
    Axes m_place; ///< m from the hull's middle
    Axes m_bias;
    double m_noise;
    Chance& m_chance;
};

/// A watch on the left wrist, tilted one way by its own blade and the other way by the other.
watchmotiondata_v5 watchSample(const BoatState& boat, double timestamp, Chance& chance) {
    const double own = boat.blade;
    const double roll = 0.4 + (own > 0 ? 0.7 : 0.45) * own + chance.bell(0.06);
    const double pitch = 0.25 * own + chance.bell(0.06);
    const double level = std::cos(pitch);
    watchmotiondata_v5 sample;
    sample.timestamp = timestamp;
    sample.acceleration = {0.7 * own + chance.bell(0.08), 0.5 * std::abs(own) + chance.bell(0.08),
                           chance.bell(0.1)};
    sample.rotationRate = {chance.bell(0.4), 2 * own + chance.bell(0.4), chance.bell(0.4)};
    sample.gravity = {level * std::sin(roll), -std::sin(pitch), -level * std::cos(roll)};
    sample.attitude = {pitch, roll, 0};
    return sample;
}

class Recorder {
public:
    Recorder(const Scenario& scenario, const Voyage& voyage, Chance& chance, Simulation& result)
        : m_scenario(scenario),
          m_voyage(voyage),
          m_chance(chance),
          m_result(result),
          m_clockStart(chance.between(100, 90000)),
          m_dateStart(736500000 + chance.between(0, 1e6)) {}

    void record() {
        m_result.mass = m_voyage.mass;
        m_result.drag = m_voyage.drag;
        m_result.clockOffset = m_dateStart - m_clockStart;
        m_result.session.info = {{m_dateStart}, "Test water", "Training", "Simulated"};
        m_result.session.athleteinfo.name = "Ada Example";
        m_result.session.athleteinfo.discipline = m_scenario.isCanoe ? "C1W" : "K1W";
        m_result.session.athleteinfo.weight = m_voyage.mass - 13;
        keepTruth();
        if (m_scenario.hasFaults)
            planGaps();
        recordBoat();
        if (m_scenario.hasPosition)
            recordFixes();
        if (m_scenario.hasWatch)
            recordWatch();
    }

private:
    [[nodiscard]] double stamp(double time) const { return m_clockStart + time; }

    void keepTruth() {
        for (std::size_t i = 0; i < m_voyage.plan.strokes.size(); ++i) {
            const PlannedStroke& s = m_voyage.plan.strokes[i];
            if (s.begin + s.water > m_scenario.seconds)
                break;
            const double top = s.begin + s.water * s.rise / (s.rise + s.fall);
            m_result.strokes.push_back({stamp(s.begin), stamp(top), stamp(s.begin + s.water),
                                        s.hand, m_voyage.impulses[i], m_voyage.works[i], s.inTurn});
        }
        for (const PlannedTurn& t : m_voyage.plan.turns)
            if (t.begin + t.seconds < m_scenario.seconds)
                m_result.turns.push_back({stamp(t.begin), stamp(t.begin + t.seconds), t.angle,
                                          2 * std::abs(t.angle) / t.seconds});
        for (std::size_t i = 0; i < m_voyage.states.size(); i += 2) {
            m_result.time.push_back(stamp(m_voyage.states[i].time));
            m_result.acceleration.push_back(m_voyage.states[i].pull);
            m_result.speed.push_back(m_voyage.states[i].speed);
        }
    }

    void planGaps() {
        for (double time = m_chance.between(15, 40); time < m_scenario.seconds - 10;
             time += m_chance.between(25, 60))
            m_result.gaps.push_back({stamp(time), stamp(time + m_chance.between(0.35, 2.5))});
    }

    [[nodiscard]] bool isInGap(double moment) const {
        return std::any_of(m_result.gaps.begin(), m_result.gaps.end(),
                           [&](const Gap& gap) { return moment > gap.begin && moment < gap.end; });
    }

    void recordBoat() {
        Phone phone(m_scenario, m_chance);
        auto& samples = m_result.session.boatmotion;
        bool slips = m_scenario.slip != 0;
        for (std::size_t i = 0; i < m_voyage.states.size(); i += samplePace(i)) {
            const BoatState& state = m_voyage.states[i];
            if (slips && state.time > m_scenario.seconds * 0.45) {
                phone.slip(m_scenario.slip);
                m_result.slipTime = stamp(state.time);
                slips = false;
            }
            if (isInGap(stamp(state.time)))
                continue;
            samples.push_back(phone.sample(state, stamp(state.time) + m_chance.between(0, 0.001)));
            if (m_scenario.hasFaults)
                spoil(samples);
        }
    }

    /// States from one sample to the next.
    [[nodiscard]] std::size_t samplePace(std::size_t i) const {
        constexpr std::size_t Period = 20 * StatesPerSecond;
        const bool isSlow = m_scenario.sampling == Sampling::Hz50 ||
                            (m_scenario.sampling == Sampling::Switching && (i / Period) % 2 == 1);
        return isSlow ? 4 : 2;
    }

    /// Knocks against the phone, samples that come twice or in the wrong order.
    void spoil(std::vector<boatmotionrawdata_v5>& samples) {
        if (m_chance.hits(0.0005)) {
            samples.back().acceleration.x += m_chance.bell(2);
            samples.back().acceleration.y += m_chance.bell(2);
            samples.back().acceleration.z += m_chance.bell(2);
        }
        if (m_chance.hits(0.002))
            samples.push_back(samples.back());
        if (m_chance.hits(0.002) && samples.size() > 2)
            std::swap(samples[samples.size() - 1], samples[samples.size() - 2]);
    }

    void recordFixes() {
        constexpr double MetresPerDegree = 111320;
        const double lag = m_chance.between(0.2, 1.2);
        double drift = 0;
        for (double time = m_chance.between(0, 1); time < m_scenario.seconds; time += 1) {
            const double shown = time - lag;
            drift = 0.7 * drift + m_chance.bell(0.06);
            const BoatState& state = stateAt(shown);
            // Receivers smooth over about a second.
            const double speed =
                (stateAt(shown - 0.35).speed + state.speed + stateAt(shown + 0.35).speed) / 3;
            const double latitude = 47 + state.north / MetresPerDegree;
            const double longitude = 8 + state.east / (MetresPerDegree * std::cos(47 * pi / 180));
            m_result.session.gps.push_back({{m_dateStart + time},
                                            std::abs(speed + drift + m_chance.bell(0.04)),
                                            latitude,
                                            longitude});
            m_result.session.heart.push_back({{m_dateStart + time}, 150});
        }
    }

    [[nodiscard]] const BoatState& stateAt(double time) const {
        const auto last = static_cast<double>(m_voyage.states.size() - 1);
        return m_voyage
            .states[static_cast<std::size_t>(std::clamp(time * StatesPerSecond, 0.0, last))];
    }

    void recordWatch() {
        m_result.watchOffset = m_chance.between(-2.5, 2.5);
        for (std::size_t i = 0; i < m_voyage.states.size(); i += 4) {
            const BoatState& state = m_voyage.states[i];
            m_result.session.watchmotion.push_back(
                watchSample(state, stamp(state.time) - m_result.watchOffset, m_chance));
        }
    }

    const Scenario& m_scenario;
    const Voyage& m_voyage;
    Chance& m_chance;
    Simulation& m_result;
    double m_clockStart;
    double m_dateStart;
};

} // namespace

Simulation simulate(const Scenario& scenario) {
    Chance chance(scenario.seed * 7919 + 17);
    const Voyage voyage = sail(scenario, chance);
    Simulation result;
    Recorder(scenario, voyage, chance, result).record();
    return result;
}

} // namespace kavela::test
