#pragma once

#include "boatmotion/attachment.h"

#include <span>
#include <string>
#include <vector>

/// Which parts of a run a recording covers. A count of strokes is one only where there are samples;
/// where there are none it is not 0 but unknown.
namespace kavela {

/// A stretch with samples of the boat, in seconds from the run's start.
struct MotionStretch {
    double from = 0;
    double to = 0;
};

/// The stretches that samples cover, by time; holes of up to `LongestMotionBridge` are bridged.
class MotionCover {
public:
    /// Samples whose stamps lie on a run in this way, in any order. Attached arrays have a made
    /// sample on each edge, which covers nothing where it stands alone.
    MotionCover(std::span<const boatmotionrawdata_v5> samples, const RunClock& clock);

    enum Share { None, Part, Whole };
    /// How much of a stretch is covered; ends that miss no more than a bridge count as covered.
    [[nodiscard]] Share of(double from, double to) const;
    /// Seconds of it that are covered.
    [[nodiscard]] double secondsOf(double from, double to) const;

    /// What is missing of a run of so many seconds, as sentences for people; none when it is whole.
    [[nodiscard]] std::vector<std::string> notes(double seconds) const;

private:
    std::vector<MotionStretch> m_stretches;
};

/// How the stamps of a recording lie on a run that starts at `runStart` seconds of the video.
[[nodiscard]] RunClock runClock(const ClockFit& fit, double runStart);

} // namespace kavela
