#pragma once

#include "boatmotion/sessions.h"

#include <cmath>
#include <functional>
#include <numbers>

namespace kavela::test {

/// The motion of a boat at a moment, with a phone on its back, the top to the bow.
struct HandMadeMotion {
    double forward = 0; ///< m/s²
    double yawRate = 0; ///< rad/s
    double roll = 0;    ///< rad
    double pitch = 0;   ///< rad
    double speed = 0;   ///< m/s, of the fixes
};

/// A recording of 100 samples and 1 fix a second without noise.
inline bmrawdata_v5 handMade(double seconds, const std::function<HandMadeMotion(double)>& motion) {
    constexpr double ClockStart = 1000;
    constexpr double DateStart = 736500000;
    bmrawdata_v5 session;
    session.info.date = {DateStart};
    const int samples = static_cast<int>(seconds * 100);
    for (int i = 0; i < samples; ++i) {
        const double time = i / 100.0;
        const HandMadeMotion m = motion(time);
        boatmotionrawdata_v5 sample;
        sample.timestamp = ClockStart + time;
        sample.acceleration.y = m.forward / 9.80665;
        sample.rotationRate.z = m.yawRate;
        sample.gravity = {std::cos(m.pitch) * std::sin(m.roll), -std::sin(m.pitch),
                          -std::cos(m.pitch) * std::cos(m.roll)};
        sample.attitude = {m.pitch, m.roll, 0};
        session.boatmotion.push_back(sample);
        if (i % 100 == 0)
            session.gps.push_back({{DateStart + time}, m.speed, 47, 8});
    }
    return session;
}

/// Steady paddling: half a sine of force for 0.4 s of every 0.75 s, 80 strokes a minute, left and
/// right in turn, at a speed of 3 m/s on the whole.
inline HandMadeMotion steadyPaddling(double time) {
    constexpr double Cycle = 0.75;
    constexpr double Water = 0.4;
    constexpr double Mass = 88;
    constexpr double Drag = 5;
    const double part = std::fmod(time, Cycle) / Water;
    const double pull = part < 1 ? std::sin(std::numbers::pi * part) : 0;
    const double peak = Drag * 9 * Cycle / (Water * 2 / std::numbers::pi); // N, to keep the speed
    const double side = std::fmod(time, 2 * Cycle) < Cycle ? 1 : -1;
    HandMadeMotion motion;
    motion.forward = (peak * pull - Drag * 9) / Mass;
    // The first blade is the left one: the bow goes to the right.
    motion.yawRate = -0.1 * side * (part < 1 ? -std::cos(std::numbers::pi * part) : 1);
    motion.speed = 3;
    return motion;
}

} // namespace kavela::test
