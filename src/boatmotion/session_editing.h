#pragma once

#include "boatmotion/companions.h"
#include "boatmotion/strokes/motion_analysis.h"

#include <memory>
#include <optional>
#include <span>

/// Work on a session: its information, cuts, noise that is taken out, the coach's marks.
namespace kavela {

/// A session while it is worked on. Moments are on the clock of the boat's samples, in seconds.
struct EditedSession {
    smartAlldata_v4 session;
    std::vector<double> marks; ///< begin and end the segments; ascending
    /// What the session was made of; nothing where a processed session was opened. Its information
    /// is that of the time of reading: see recordingOf.
    std::shared_ptr<const bmrawdata_v5> recording{};
    double clockOffset = 0;                   ///< date = moment + clockOffset
    bool isClockGuessed = false;              ///< strokes and fixes may be some seconds apart
    double watchOffset = 0;                   ///< moment = stamp of the watch + watchOffset
    std::vector<powermeterData> powerMeter{}; ///< `dateDouble` is a moment; not in the session yet
    std::vector<MotionFlag> flags{};
    std::vector<std::string> notes{}; ///< what has to be known about the figures, as sentences
    bool hasSpeed = true;             ///< else force, impulse and power are not known
    /// Else much is not known of strokes and turns, see MotionAnalysis::isBowKnown. In a session
    /// that was read it is known when any stroke has a hand.
    bool isBowKnown = true;
    std::optional<Mount> mount{}; ///< of the phone, as the coach named it for the analysis
};

/// The session of an analysed recording.
[[nodiscard]] EditedSession editedSession(std::shared_ptr<const bmrawdata_v5> recording,
                                          const MotionAnalysis& analysis);

/// Analyses a recording with the profile of its athlete and the mount that the coach named. Throws
/// MotionError.
[[nodiscard]] EditedSession analysedSession(bmrawdata_v5 recording, std::optional<Mount> mount);

/// A processed session that was read. Its marks are found again from its segment numbers, each at
/// the first stroke or turn behind it; segments that are not numbered in turn give none.
[[nodiscard]] EditedSession editedSession(smartAlldata_v4 session);

/// The moments from the first to the last sample, stroke, turn or fix. Both 0 where there is none.
struct MomentRange {
    double from = 0;
    double to = 0;
};
[[nodiscard]] MomentRange momentsOf(const EditedSession& session);

/// The session with what begins from `range.from` up to `range.to`, or without it. What stays is
/// exactly as it was; a recording that loses its beginning is dated by its new first sample.
/// Nothing when too little would be left: fewer than 100 samples of a recording, or no stroke and
/// no turn.
[[nodiscard]] std::optional<EditedSession> keptRange(const EditedSession& session,
                                                     MomentRange range);
[[nodiscard]] std::optional<EditedSession> withoutRange(const EditedSession& session,
                                                        MomentRange range);

/// Sets the marks, in any order, and numbers the segments by them: with fewer than two there is
/// only segment 0.
void setMarks(EditedSession& session, std::vector<double> marks);

/// Takes out strokes and turns, by their places in `strokesData`.
void removeEntries(EditedSession& session, std::span<const std::size_t> entries);

/// The recording as it is saved: what is left of it, with the information of the session. There has
/// to be one.
[[nodiscard]] bmrawdata_v5 recordingOf(const EditedSession& session);

/// Told, with its title, when segments are to be written and there is only one mark or none.
inline constexpr const char* TooFewMarks =
    "If you want to have segments, mark at least two of them.";
inline constexpr const char* TooFewMarksTitle = "Careful!";

} // namespace kavela
