#include "sample/recording.h"

#include "sample/dice.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::sample {

namespace {

using std::numbers::pi;

constexpr int SamplesPerSecond = 50;
constexpr double Step = 1.0 / SamplesPerSecond;
constexpr double Gravity = 9.80665;        // m/s²
constexpr double Mass = 88;                // athlete, boat and kit, kg
constexpr double Drag = 5;                 // N·s²/m²
constexpr double YawInertia = 24;          // kg·m²
constexpr double YawArm = 0.24;            // m, from the boat's middle line to the blade's force
constexpr double YawDecay = 3.2;           // 1/s
constexpr double WaterShare = 0.6;         // of a stroke's cycle
constexpr double MetresPerDegree = 111320; // of latitude

double rounded(double value, double unitsPerOne = 1e4) {
    return std::round(value * unitsPerOne) / unitsPerOne;
}

/// The strokes, one side after the other.
class Paddler {
public:
    Paddler(double strokesPerMinute, Dice& dice)
        : m_meanCycle(60 / strokesPerMinute), m_dice(dice) {
        nextStroke();
    }

    void advance() {
        m_time += Step;
        if (m_time >= m_cycle)
            nextStroke();
    }

    /// 0 in the air, otherwise how hard the blade pulls: up to 1.
    [[nodiscard]] double pull() const {
        const double water = WaterShare * m_cycle;
        return m_time < water ? std::sin(pi * m_time / water) : 0;
    }
    [[nodiscard]] double force() const { return m_peak * pull(); } ///< N
    [[nodiscard]] double side() const { return m_side; }           ///< 1 left, -1 right

private:
    void nextStroke() {
        m_time = 0;
        m_side = -m_side;
        m_cycle = m_meanCycle * (1 + m_dice.bell(0.05));
        m_peak = 118 * (1 + m_dice.bell(0.07));
    }

    double m_meanCycle;
    Dice& m_dice;
    double m_time = 0;
    double m_cycle = 0;
    double m_side = -1;
    double m_peak = 0;
};

/// How far into a turn the boat is.
struct TurnState {
    double yawRate = 0; ///< rad/s
    double lean = 0;    ///< 1 fully to the left, -1 to the right
};

TurnState turnAt(const std::vector<Turn>& turns, double time) {
    for (const Turn& turn : turns) {
        const double part = (time - turn.at) / turn.seconds;
        if (part <= 0 || part >= 1)
            continue;
        const double bump = std::sin(pi * part);
        return {turn.angle * pi / (2 * turn.seconds) * bump, std::copysign(bump, turn.angle)};
    }
    return {};
}

struct BoatState {
    double speed = 1.9; ///< m/s
    double acceleration = 0;
    double wobble = 0; ///< yaw rate from the strokes, rad/s
    double yawRate = 0;
    double heading = 0; ///< rad to the left of the course's direction
    double roll = 0;
    double pitch = 0;
    double north = 0; ///< metres from the start
    double east = 0;
};

/// Moves the boat on by one step.
void paddleOn(BoatState& boat, const Paddler& paddler, const TurnState& turn, double time) {
    // In a turn the blade steers more than it drives, and the hull slides.
    const double turning = std::abs(turn.lean);
    const double force = paddler.force() * (1 - 0.6 * turning);
    const double drag = Drag * boat.speed * boat.speed * (1 + 1.2 * turning);
    boat.acceleration = (force - drag) / Mass;
    boat.speed = std::max(0.2, boat.speed + boat.acceleration * Step);
    // The left blade pushes the bow to the right.
    const double torque = -paddler.side() * YawArm * force;
    boat.wobble += (torque / YawInertia - YawDecay * boat.wobble) * Step;
    boat.yawRate = boat.wobble + turn.yawRate;
    boat.heading += boat.yawRate * Step;
    boat.roll = -0.05 * paddler.side() * paddler.pull() - 0.2 * turn.lean +
                0.015 * std::sin(2 * pi * 0.7 * time);
    boat.pitch = 0.02 + 0.012 * paddler.pull() + 0.015 * std::sin(2 * pi * 1.3 * time + 1);
    constexpr double CourseDirection = 2.3; // rad from north, clockwise
    boat.north += boat.speed * std::cos(CourseDirection - boat.heading) * Step;
    boat.east += boat.speed * std::sin(CourseDirection - boat.heading) * Step;
}

double wrapped(double angle) {
    return std::remainder(angle, 2 * pi);
}

gravityCodable gravityOf(double pitch, double roll) {
    return {rounded(std::cos(pitch) * std::sin(roll)), rounded(-std::sin(pitch)),
            rounded(-std::cos(pitch) * std::cos(roll))};
}

boatmotionrawdata_v5 boatSample(const BoatState& boat, const BoatState& before, double timestamp,
                                Dice& dice) {
    constexpr double Noise = 0.008;
    const double sideways = -0.4 * boat.speed * boat.yawRate / Gravity;
    boatmotionrawdata_v5 sample;
    sample.timestamp = timestamp;
    sample.acceleration = {rounded(sideways + dice.bell(Noise)),
                           rounded(boat.acceleration / Gravity + dice.bell(Noise)),
                           rounded(dice.bell(2 * Noise))};
    sample.rotationRate = {rounded((boat.pitch - before.pitch) / Step + dice.bell(Noise)),
                           rounded((boat.roll - before.roll) / Step + dice.bell(Noise)),
                           rounded(boat.yawRate + dice.bell(Noise))};
    sample.attitude = {rounded(boat.pitch), rounded(boat.roll), rounded(wrapped(boat.heading))};
    sample.gravity = gravityOf(boat.pitch, boat.roll);
    return sample;
}

/// The watch on the left wrist: it dips with the left blade and swings with both.
watchmotiondata_v5 watchSample(const Paddler& paddler, double timestamp, Dice& dice) {
    constexpr double Noise = 0.03;
    const double own = paddler.side() * paddler.pull();
    watchmotiondata_v5 sample;
    sample.timestamp = timestamp;
    sample.acceleration = {rounded(0.9 * own + dice.bell(Noise)),
                           rounded(0.6 * paddler.pull() - 0.25 + dice.bell(Noise)),
                           rounded(0.35 * own + dice.bell(Noise))};
    sample.rotationRate = {rounded(2.4 * own + dice.bell(Noise)), rounded(dice.bell(0.3)),
                           rounded(3.1 * own + dice.bell(Noise))};
    const double pitch = -0.5 * own;
    const double roll = 0.4 - 0.7 * own;
    sample.attitude = {rounded(pitch), rounded(roll), rounded(0.3 * own)};
    sample.gravity = gravityOf(pitch, roll);
    return sample;
}

gpsrawdata fix(const RecordingPlan& plan, const BoatState& boat, double time, Dice& dice) {
    constexpr double Scatter = 0.25; // m
    const double metresPerDegreeEast = MetresPerDegree * std::cos(plan.latitude * pi / 180);
    const double north = boat.north + dice.bell(Scatter);
    const double east = boat.east + dice.bell(Scatter);
    return {{plan.start.seconds + time},
            rounded(std::max(0.0, boat.speed + dice.bell(0.06)), 100),
            rounded(plan.latitude + north / MetresPerDegree, 1e7),
            rounded(plan.longitude + east / metresPerDegreeEast, 1e7)};
}

heartmotiondata heartRate(const RecordingPlan& plan, double time, Dice& dice) {
    const double hr = 184 - 40 * std::exp(-time / 22) + dice.bell(0.8);
    return {{plan.start.seconds + time}, std::round(hr)};
}

} // namespace

Recording record(const RecordingPlan& plan) {
    Dice dice(plan.label);
    Paddler paddler(plan.strokesPerMinute, dice);
    BoatState boat;
    paddleOn(boat, paddler, {}, -Step); // the first sample needs one before it
    Recording recording;
    const auto samples = static_cast<int>(plan.seconds * SamplesPerSecond);
    for (int i = 0; i < samples; ++i) {
        const double time = i * Step;
        const BoatState before = boat;
        paddleOn(boat, paddler, turnAt(plan.turns, time), time);
        const double timestamp = rounded(plan.clockStart + time + dice.between(0, 0.0015));
        recording.boat.push_back(boatSample(boat, before, timestamp, dice));
        if (plan.hasWatch)
            recording.watch.push_back(watchSample(paddler, timestamp, dice));
        if (i % SamplesPerSecond == 0) {
            recording.gps.push_back(fix(plan, boat, time, dice));
            recording.heart.push_back(heartRate(plan, time, dice));
        }
        paddler.advance();
    }
    return recording;
}

} // namespace kavela::sample
