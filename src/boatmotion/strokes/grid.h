#pragma once

#include "boatmotion/samples.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace kavela::strokes {

/// A direction or a quantity along the three axes of a device.
using Vector = std::array<double, 3>;

[[nodiscard]] inline double dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// Motion samples brought to 50 evenly spaced values a second, along the axes of the device. A hole
/// of more than 0.3 s holds values that are not valid: no acceleration, no rotation, the gravity of
/// before. A hole of more than 2 s is cut down to one of a second, over which `time` jumps.
struct MotionGrid {
    std::vector<double> time;                        ///< s
    std::array<std::vector<double>, 3> acceleration; ///< m/s², without gravity and without hits
    std::array<std::vector<double>, 3> rotation;     ///< rad/s
    std::array<std::vector<double>, 3> gravity;      ///< of length 1, down
    std::vector<std::uint8_t> valid;                 ///< 1 or 0
    std::size_t samples = 0;                         ///< that were used
    bool hasHoles = false;
    bool gravityRebuilt = false;

    [[nodiscard]] std::size_t size() const { return time.size(); }
};

/// Orders the samples by their stamps, leaves out those that are no motion of a boat and those that
/// stand alone, and averages the rest. Where gravity is missing it is rebuilt from the attitude.
template <class Sample>
[[nodiscard]] MotionGrid gridOf(std::span<const Sample> samples);

extern template MotionGrid gridOf(std::span<const boatmotionrawdata_v5> samples);
extern template MotionGrid gridOf(std::span<const watchmotiondata_v5> samples);

} // namespace kavela::strokes
