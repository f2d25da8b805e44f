#pragma once

#include "boatmotion/samples.h"

#include <optional>
#include <span>
#include <vector>

/// Fixes carry dates, motion samples the stamps of a device's clock.
namespace kavela::strokes {

struct ClockRelation {
    double offset = 0;      ///< date = stamp + offset
    bool isGuessed = false; ///< from the first fix, for want of a believable date
};

/// The relation as MotionSamples::start describes it. `firstStamp` and `lastStamp` enclose the
/// motion samples.
[[nodiscard]] ClockRelation clockRelation(double firstStamp, double lastStamp,
                                          std::span<const gpsrawdata> gps,
                                          std::optional<ReferenceDate> start);

/// A speed over ground on the clock of the motion samples.
struct SpeedFix {
    double time = 0;  ///< s
    double speed = 0; ///< m/s
};

/// The fixes that tell a believable speed, by time; of several at one moment the first.
[[nodiscard]] std::vector<SpeedFix> speedFixes(std::span<const gpsrawdata> gps, double offset);

} // namespace kavela::strokes
