#pragma once

#include "common/cm_time.h"

#include <cmath>
#include <cstdint>

namespace kavela::sample {

/// Frames of a film. All films of the season have 50 frames per second, and whatever was timed was
/// timed from frame to frame.
using Frames = std::int64_t;
inline constexpr Frames FramesPerSecond = 50;

/// Seconds as a number with two decimals.
[[nodiscard]] constexpr double secondsOf(Frames frames) {
    constexpr Frames HundredthsPerFrame = 100 / FramesPerSecond;
    return static_cast<double>(frames * HundredthsPerFrame) / 100.0;
}

/// The whole frame nearest to a number of seconds.
[[nodiscard]] inline Frames framesOf(double seconds) {
    return std::llround(seconds * static_cast<double>(FramesPerSecond));
}

/// How a film's player stamps its frames.
struct FilmClock {
    std::int32_t timescale = 600;

    [[nodiscard]] constexpr CMTime at(Frames frame) const {
        constexpr std::uint32_t Valid = 1;
        return {frame * (timescale / FramesPerSecond), timescale, Valid, 0};
    }
};

} // namespace kavela::sample
