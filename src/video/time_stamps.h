#pragma once

#include "common/cm_time.h"

#include <cstdint>
#include <optional>

namespace kavela {

/// The length of a tick of a container's clock: `num`/`den` seconds, both positive.
struct TimeBase {
    std::int32_t num = 1;
    std::int32_t den = 1;

    friend bool operator==(const TimeBase&, const TimeBase&) = default;
};

/// `CMTime::flags` of a usable stamp, and of one that could not be kept exactly.
inline constexpr std::uint32_t ValidStamp = 1;
inline constexpr std::uint32_t RoundedStamp = 2;

/// A number of ticks as the stamp that is stored: value ticks × num, timescale den. Only a product
/// that no 64-bit integer holds is rounded to whole seconds, and flagged so.
[[nodiscard]] CMTime stampOf(std::int64_t ticks, TimeBase base);

/// Whether it is a moment at all: valid, not infinite, with a positive time scale.
[[nodiscard]] bool isMoment(const CMTime& stamp);

/// Below, equal to or above 0 as a number of ticks lies before, at or after a moment; exact.
[[nodiscard]] int compareTicks(std::int64_t ticks, TimeBase base, const CMTime& moment);

/// The moment in ticks of 1/`timescale` of its own, to the nearest.
[[nodiscard]] std::int64_t ticksToScale(std::int64_t ticks, TimeBase base, std::int32_t timescale);

} // namespace kavela
