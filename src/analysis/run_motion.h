#pragma once

#include "analysis/analyzer_records.h"
#include "boatmotion/motion_cover.h"
#include "boatmotion/strokes/motion_analysis.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

/// What the recording attached to a run tells about it, on the time of the run: seconds from its
/// start mark. How the arrays lie on the run is told by boatmotion/attachment.h.
namespace kavela {

/// A stroke of the run.
struct RunStroke {
    double time = 0;         ///< of the catch, s
    std::size_t section = 0; ///< counted from 0
    double rate = 0;         ///< to be shown: the median of up to five strokes around it, 1/min
    Stroke stroke;           ///< its moments are on the recorder's clock
};

/// A turn of the run.
struct RunTurn {
    double time = 0; ///< of the greatest yaw rate, s
    std::size_t section = 0;
    Turn turn; ///< its moments are on the recorder's clock
};

struct TimedValue {
    double time = 0; ///< s
    double value = 0;
};

/// One section of the run; nothing where it is not known.
struct SectionMotion {
    double start = 0; ///< s; a section that follows untimed ones begins where those do
    double end = 0;   ///< s; the start, for a section that was not timed: nothing is known of it
    /// How much of it the boat's samples cover, and for how many seconds. Strokes and turns of a
    /// section covered in part are those of that part; of a whole run they are then not known.
    MotionCover::Share cover = MotionCover::None;
    double covered = 0;
    std::optional<std::size_t> strokes;
    std::optional<double> strokeRate; ///< mean of its strokes, 1/min
    std::optional<double> meanSpeed;  ///< m/s
    std::optional<double> maxSpeed;   ///< m/s
    std::optional<double> distance;   ///< m
    std::optional<double> heartRate;  ///< mean, beats per minute
    std::optional<std::size_t> turns;
};

struct RunMotion {
    double seconds = 0; ///< of the run, to its last mark
    /// Why strokes, or all of it, are not known; empty when they are.
    std::string reason;
    std::vector<MotionFlag> flags;  ///< what has to be known about the figures
    std::vector<std::string> notes; ///< the same as sentences
    bool isBowKnown = true;         ///< else the hands of the strokes are not known, and more
    double drift = 0;               ///< of the recorder's clock against the video's; 0.001 is 0.1 %
    std::vector<std::string> coverNotes; ///< what of the run was not recorded, as sentences
    std::vector<RunStroke> strokes;
    std::vector<RunTurn> turns;
    std::vector<TimedValue> speed;       ///< ten a second, or those of the fixes; m/s
    std::vector<TimedValue> heart;       ///< beats per minute
    std::vector<SectionMotion> sections; ///< one for each time of the run
    SectionMotion whole;                 ///< of the run from its start to its last mark

    [[nodiscard]] bool isEmpty() const { return strokes.empty() && speed.empty() && heart.empty(); }
};

/// The arrays of a run.
struct RunArrays {
    std::span<const double> times; ///< from mark to mark, s; 0 was not timed
    std::span<const boatmotionrawdata_v5> bm;
    std::span<const watchmotiondata_v5> watchmotion;
    std::span<const gpsrawdata> gps;
    std::span<const heartmotiondata> hr;
};

/// Whatever is in the arrays, nothing is thrown: what cannot be told is left out, with the reason.
[[nodiscard]] RunMotion runMotion(const RunArrays& run, const MotionProfile& profile);

/// The same for a run as it is stored or as the analyzer has it. The class of boat is read from
/// the run's category, or the race's; the rest of the profile is that of a new one.
[[nodiscard]] RunMotion runMotion(const athletedata031& run, const infodata031& info);
[[nodiscard]] RunMotion runMotion(const analyzerdata& run);

/// The start and the last mark of a run in seconds of its first camera's video, which are what
/// partOf() cuts by; nothing for a run without a mark that has a stamp.
struct RunSpan {
    double start = 0;
    double end = 0;
};
[[nodiscard]] std::optional<RunSpan> runSpan(const athletedata031& run);

} // namespace kavela
