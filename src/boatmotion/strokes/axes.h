#pragma once

#include "boatmotion/strokes/clocks.h"
#include "boatmotion/strokes/grid.h"
#include "boatmotion/strokes/motion_analysis.h"

#include <numbers>

/// Where the bow is, however the phone is mounted.
namespace kavela::strokes {

/// The device's motion along two arbitrary horizontal directions, and about the vertical.
struct LevelMotion {
    Vector up{};
    Vector east{};                           ///< first horizontal direction in device axes
    Vector north{};                          ///< second one, a quarter to the left of it
    std::array<std::vector<double>, 2> pull; ///< horizontal acceleration, m/s²
    std::array<std::vector<double>, 2> tilt; ///< horizontal rotation rate, rad/s
    std::vector<double> yawRate;             ///< rad/s
};

[[nodiscard]] LevelMotion levelMotion(const MotionGrid& grid);

/// The bow's direction among the two horizontal ones.
struct Bow {
    double east = 0;
    double north = 1;
    double fixLag = 0; ///< how late the fixes are, s
    double ahead = 0;  ///< how far the phone is in front of the point about which the boat turns, m
    double certainty = 0;   ///< share of the fixes' speed changes that the direction explains
    bool isKnown = false;   ///< by fixes or by the mount: front and back cannot be swapped
    bool isAssumed = false; ///< by the mount
};

/// The direction along which the boat is pushed and about which it rolls. Which end is the bow is
/// told by the fixes; where these explain less than a tenth, by the mount.
[[nodiscard]] Bow findBow(const MotionGrid& grid, const LevelMotion& level,
                          std::span<const SpeedFix> fixes, std::optional<Mount> mount);

/// Directions of a boat in the axes of the device: along it, to its left and up. Which end of it is
/// the bow is not known.
struct BoatAxes {
    Vector along{};
    Vector left{};
    Vector up{};
    double certainty = 0; ///< 0 where stroking shows no direction, to 1 where it shows one alone
};

/// The boat's axes by its stroking alone.
[[nodiscard]] BoatAxes boatAxes(const MotionGrid& grid);

/// The acceleration of the boat along its bow: what the phone feels there, without what it feels
/// for being swung around the boat's middle.
[[nodiscard]] std::vector<double> forwardAcceleration(const LevelMotion& level, const Bow& bow);

} // namespace kavela::strokes
