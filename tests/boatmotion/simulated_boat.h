#pragma once

#include "boatmotion/simulated_paddler.h"

#include <array>

namespace kavela::test {

using Axes = std::array<double, 3>; ///< along X bow, Y left, Z up, or along a device's axes

/// The boat at one moment.
struct BoatState {
    double time = 0;
    double speed = 0; ///< m/s
    double pull = 0;  ///< acceleration of the hull's middle towards the bow, m/s²
    double side = 0;  ///< to the left
    double heave = 0; ///< up
    Axes rotation{};  ///< rad/s about the boat's axes
    Axes spin{};      ///< rad/s², its derivative
    double roll = 0;
    double pitch = 0;
    double heading = 0;
    double north = 0; ///< m
    double east = 0;  ///< m
    double blade = 0; ///< how far the present stroke has pulled, -1 right to 1 left
};

struct Voyage {
    std::vector<BoatState> states; ///< StatesPerSecond of them
    Plan plan;
    std::vector<double> impulses; ///< of the plan's strokes, N·s
    std::vector<double> works;    ///< J
    double mass = 0;
    double drag = 0;
};

inline constexpr int StatesPerSecond = 200;

/// Lets the paddler paddle.
[[nodiscard]] Voyage sail(const Scenario& scenario, Chance& chance);

} // namespace kavela::test
