#pragma once

#include "boatmotion/sessions.h"

#include <cstdint>
#include <vector>

/// Recordings of a boat of which everything is known. The hull is a body with mass, drag and
/// inertia that blades push, turn and tilt and waves rock; a phone mounted anyhow feels it at its
/// own place, and records it with the faults of real phones.
namespace kavela::test {

enum class Sea { Calm, Light, Rough };
enum class Style { Steady, Slalom };
enum class PhoneMount { Forward, Backward, Any };
enum class Sampling { Hz50, Hz100, Switching };

struct Scenario {
    std::uint64_t seed = 1;
    double seconds = 120;
    double strokesPerMinute = 80;
    Sea sea = Sea::Calm;
    Style style = Style::Steady;
    PhoneMount mount = PhoneMount::Any;
    Sampling sampling = Sampling::Hz100;
    bool isCanoe = false;
    bool hasPosition = true;
    bool hasWatch = false;
    bool hasFaults = true;  ///< gaps, hits, repeated and swapped samples
    bool isIdle = false;    ///< nobody paddles
    bool isHostile = false; ///< uneven sides, strokes with two humps, a body that rocks
    double noise = 0.012;   ///< of the accelerometer, g
    /// Paddler, boat and water of chance: see Habits. Else those are much alike.
    bool isVaried = false;
    double slip = 0; ///< rad by which the phone turns in its mount midway
};

struct TrueStroke {
    double catchTime = 0; ///< on the clock of the boat's samples
    double peakTime = 0;
    double exitTime = 0;
    int hand = 0; ///< 0 left, 1 right
    double impulse = 0;
    double work = 0; ///< J, of the force that moves the hull
    bool inTurn = false;
};

struct TrueTurn {
    double start = 0;
    double end = 0;
    double angle = 0;    ///< rad, above 0 to the left
    double peakRate = 0; ///< rad/s, without the kicks of the strokes
};

struct Gap {
    double begin = 0;
    double end = 0;
};

struct Simulation {
    bmrawdata_v5 session;
    std::vector<TrueStroke> strokes;
    std::vector<TrueTurn> turns;
    std::vector<Gap> gaps;            ///< times without samples
    std::vector<double> time;         ///< of the values below, 100 a second
    std::vector<double> acceleration; ///< what a perfect sensor along the boat would show, m/s²
    std::vector<double> speed;        ///< m/s
    double clockOffset = 0;           ///< date = stamp + clockOffset
    double watchOffset = 0;           ///< boat's stamp = watch's stamp + watchOffset
    double mass = 0;                  ///< kg
    double drag = 0;                  ///< N·s²/m²
    double slipTime = 0;              ///< on the clock of the boat's samples; 0 without a slip
};

/// Equal scenarios give equal simulations.
[[nodiscard]] Simulation simulate(const Scenario& scenario);

} // namespace kavela::test
