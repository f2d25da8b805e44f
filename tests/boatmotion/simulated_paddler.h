#pragma once

#include "boatmotion/simulator.h"

#include <cmath>
#include <numbers>
#include <random>

namespace kavela::test {

/// Chance that falls the same way with every standard library.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : m_engine(seed) {}

    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(m_engine() >> 11) * 0x1p-53;
    }
    double bell(double deviation) {
        const double size = std::sqrt(-2 * std::log(1 - between(0, 1)));
        return deviation * size * std::cos(2 * std::numbers::pi * between(0, 1));
    }
    bool hits(double probability) { return between(0, 1) < probability; }

private:
    std::mt19937_64 m_engine;
};

/// How paddlers, hulls and waters differ. What stands here is what all have who are not varied.
struct Habits {
    double kick = 1;         ///< times the usual arm of the blade
    double yawDecay = 2.6;   ///< 1/s, of the kick in the water
    double kickDelay = 0;    ///< s, of the kick after the force
    double lean = 0;         ///< rad at full pull, above 0 to the blade; 0: by chance, as usual
    double leanDelay = 0.12; ///< s, of the hull
    double leanLead = 0;     ///< s, of the body before the force
    double repeats = 0.4;    ///< chance of the same hand again in a turn
    double outside = 0;      ///< share of a turn's strokes that are made on its outside anyway
    double sweep = 1.5;      ///< greatest leverage in a turn over the least one
    double turnShape = 2;    ///< power of the sine that a turn's rate follows
    double waterShare = 0.6; ///< of a cycle
    double jitter = 0.15;    ///< of the cycles in slalom
    double rollDrift = 0;    ///< rad, of the trim in the course of the recording
    double ferrying = 0;     ///< share of the bouts that cross a current: turned aside, one-sided
    double crew = 1;         ///< paddlers

    [[nodiscard]] static Habits of(const Scenario& scenario);
};

/// One stroke as the paddler means it, on a time that begins with the recording.
struct PlannedStroke {
    double begin = 0;
    double water = 0;    ///< s
    double peak = 0;     ///< N
    double rise = 1;     ///< shape: how late the force comes
    double fall = 1;     ///< shape: how early it goes
    double leverage = 1; ///< how much it turns the boat for its force
    double dip = 0;      ///< share of the force that is missing between two humps
    int hand = 0;
    bool inTurn = false;

    /// The force at a time.
    [[nodiscard]] double force(double time) const;
};

struct PlannedTurn {
    double begin = 0;
    double seconds = 0;
    double angle = 0;
    double shape = 2; ///< see Habits::turnShape

    /// The yaw rate of the turn itself at a time.
    [[nodiscard]] double rate(double time) const;
};

struct Plan {
    std::vector<PlannedStroke> strokes;
    std::vector<PlannedTurn> turns;
};

/// Bouts of paddling with glides between them; in slalom also turns, with uneven timing and hands.
[[nodiscard]] Plan planOf(const Scenario& scenario, Chance& chance);

} // namespace kavela::test
