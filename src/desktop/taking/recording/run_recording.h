#pragma once

#include "analysis/run_motion.h"
#include "boatmotion/attachment.h"

#include <memory>
#include <optional>
#include <string>

/// A recording that is being aligned with the video of a run.
namespace kavela::desktop {

/// A recording as the dialog shows it: whole, with its series on the clock of its stamps.
struct LoadedRecording {
    std::string name; ///< of the file
    bmrawdata_v5 session;
    std::shared_ptr<const std::vector<double>> times;   ///< s, ascending
    std::shared_ptr<const std::vector<double>> forward; ///< m/s²; its magnitude without an analysis
    std::shared_ptr<const std::vector<double>> yawRate; ///< rad/s; empty without an analysis
    std::string note; ///< why there is no analysis, or what it has to tell; empty for nothing

    [[nodiscard]] double first() const { return times->empty() ? 0 : times->front(); }
    [[nodiscard]] double last() const { return times->empty() ? 0 : times->back(); }
};

/// Prepares a recording; one that cannot be analysed is shown by its accelerations.
[[nodiscard]] LoadedRecording loadedRecording(std::string name, bmrawdata_v5 session);

/// A run as it is told beside a recording that is to be attached to it.
struct RunFacts {
    std::vector<std::string> crew{};
    std::optional<ReferenceDate> date{}; ///< of the race
    std::string race{};                  ///< its title
    std::optional<RunSpan> span{};       ///< in seconds of the first film
    struct Section {
        std::string title;
        double start = 0; ///< s of the run
        double end = 0;
    };
    std::vector<Section> sections{}; ///< that were timed
};
[[nodiscard]] RunFacts factsOf(const athletedata031& run, const infodata031& info);

/// In what a recording and a run differ; nothing where one of both does not tell it.
struct Difference {
    bool isOtherAthlete = false;
    bool isOtherDay = false;

    [[nodiscard]] bool isAny() const { return isOtherAthlete || isOtherDay; }
};
/// Names are the same where each word of the shorter stands in the longer, whatever its case and
/// accents; dates less than half a day apart, or of one day in UTC, are of the same day.
[[nodiscard]] Difference differenceOf(const bmrawdata_v5& recording, const RunFacts& run);

/// What of a run a recording leaves out, as sentences: stretches and the sections they lie in.
[[nodiscard]] std::vector<std::string> coverNotes(const bmrawdata_v5& recording,
                                                  const ClockFit& fit, const RunFacts& run);

/// Up to two moments that video and recording both show.
struct CommonEvents {
    struct Event {
        std::optional<double> video; ///< seconds of the first film
        std::optional<double> stamp;

        [[nodiscard]] bool isWhole() const { return video && stamp; }
    };
    Event first;
    Event second;

    /// The relation of the clocks, by the whole events. Nothing without one. Throws ClockError.
    [[nodiscard]] std::optional<ClockFit> fit() const;
};

/// What is stored in a run when the part of a recording is attached to it, or taken off.
void attachTo(athletedata031& run, AttachedPart part);
void detachFrom(athletedata031& run);
[[nodiscard]] bool hasRecording(const athletedata031& run);

} // namespace kavela::desktop
