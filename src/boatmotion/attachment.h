#pragma once

#include "boatmotion/sessions.h"

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

/// Attaching the part of a recording that belongs to a run.
///
/// What is attached keeps the stamps and dates of its recorder, and nothing is stored beside it
/// that tells how they lie on the run. The cut itself tells it: it begins `AttachMargin` seconds
/// before the run's start and ends as long after its last mark, and the boat's samples, the fixes
/// and the heart rates each begin and end exactly there. Where no sample stands on the edge, one
/// with the values between its neighbours is added; where the recording has nothing to tell there,
/// one that says so (no motion, speed -1, heart rate 0), which every analysis passes over. So
///
///     moment of the run = (stamp - first stamp) / rate - margin,
///     rate = (last stamp - first stamp) / (seconds of the run + 2 margin),
///
/// holds for the boat's samples, and with the dates in place of the stamps for the rest: the drift
/// of the recorder's clock against the video's is in the rate. Arrays that were cut without a
/// margin, exactly from mark to mark, are told from others by their length (runClock).
///
/// The watch's samples keep a clock of their own, which is within seconds of the boat's, and are
/// cut with `WatchMargin` more on both sides; the analysis finds how the two clocks lie.
namespace kavela {

inline constexpr double AttachMargin = 3; ///< s; filters need a lead, and the start its first pull
inline constexpr double WatchMargin = 3;  ///< s
inline constexpr double LongestMotionBridge = 0.3; ///< s between samples that belong together
inline constexpr double GreatestDrift = 0.01;
inline constexpr double LeastEventDistance = 5; ///< s between two events that are to tell a drift

/// An event that the video and the recording both show.
struct EventPair {
    double video = 0; ///< seconds of the video
    double stamp = 0; ///< seconds of the recording's clock
};

/// How the clock of a recording lies on the time of a video.
struct ClockFit {
    EventPair anchor;
    double rate = 1; ///< seconds of the recording in one of the video

    [[nodiscard]] double stampAt(double video) const {
        return anchor.stamp + rate * (video - anchor.video);
    }
    [[nodiscard]] double videoAt(double stamp) const {
        return anchor.video + (stamp - anchor.stamp) / rate;
    }
};

/// Events that tell no believable relation of two clocks.
class ClockError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// From one event the offset alone; from two offset and drift; from more those that fit best (least
/// squares). Throws ClockError, with a sentence for people: without an event, with events all less
/// than 5 s apart, with a drift beyond 1 %.
[[nodiscard]] ClockFit clockFit(std::span<const EventPair> events);

/// What is attached to a run.
struct AttachedPart {
    std::vector<boatmotionrawdata_v5> bm;
    std::vector<watchmotiondata_v5> watchmotion;
    std::vector<gpsrawdata> gps;
    std::vector<heartmotiondata> hr;
    std::vector<std::string> notes; ///< what the recording does not cover, as sentences for people

    [[nodiscard]] bool isEmpty() const { return bm.empty() && gps.empty() && hr.empty(); }
};

/// The part of a recording from a run's start to its last mark, both in seconds of the video, with
/// the margin. The clock is that of the boat's samples; of a recording without any it is the date,
/// in seconds since 2001. An array of which nothing lies within the run is empty.
/// Throws ClockError when the run does not end after its start.
[[nodiscard]] AttachedPart partOf(const bmrawdata_v5& session, const ClockFit& fit, double runStart,
                                  double runEnd);

/// How attached arrays lie on their run.
struct RunClock {
    double first = 0;  ///< the first stamp, or date
    double margin = 0; ///< s of the run before its start that the first sample lies
    double rate = 1;   ///< seconds of the recorder in one of the run

    /// Seconds from the run's start.
    [[nodiscard]] double momentOf(double stamp) const { return (stamp - first) / rate - margin; }
};

/// The relation that arrays from `first` to `last` (stamps or dates) have to a run of `seconds`.
/// Of the cut with the margin and the one without it, it is the one with the smaller drift; nothing
/// when the drift of both is beyond 1 %: the arrays were cut in some other way.
[[nodiscard]] std::optional<RunClock> runClock(double first, double last, double seconds);

} // namespace kavela
