#pragma once

#include "common/alerts.h"
#include "splitdata/records.h"
#include "splitdata/run_marks.h"

#include <cstdint>
#include <optional>
#include <vector>

/// From marks on the video to the split times of a run. The time of a split goes from the mark
/// before it to its own, both read in seconds from the first player's stamp; the first split goes
/// from the start mark, or without one from the start of the video. The text of a time on its
/// section is hundredthsText().
namespace kavela {

/// Marks the next split; a frame between two marks puts in the split that was missed there, or the
/// one that was not seen, and those behind it move up. The marks of a run lie in order of time on
/// the first camera: a frame before the start or on another mark records nothing, and the alert
/// says why; likewise on a course whose splits are all taken, and without a player's stamp.
[[nodiscard]] std::optional<Alert> markSplit(RunMarks& run, Stamps stamps,
                                             std::int64_t totalsplits);

/// What the marking key does: the first press marks the start, each later one a split. A start that
/// is not known is marked by a frame before the first split.
[[nodiscard]] std::optional<Alert> markNext(RunMarks& run, Stamps stamps, std::int64_t totalsplits);

/// The mark at a moment of the first camera's film: 0 is the start, 1 the first split.
[[nodiscard]] std::optional<std::size_t> markAt(const RunMarks& run, const CMTime& moment);

/// Why a mark, counted as by markAt(), cannot be moved to a moment of the first camera's film: it
/// would lie on its neighbour or beyond. Nothing when it can.
[[nodiscard]] std::optional<Alert> refusalToMove(const RunMarks& run, std::size_t mark,
                                                 const CMTime& moment);

/// Sets the start mark whatever the splits are. The first time changes with it.
void setStart(RunMarks& run, Stamps stamps);

/// Moves the mark of a split, wherever that is: its time and the next one's change. Throws
/// std::out_of_range when the split is not marked.
void moveMark(RunMarks& run, std::size_t split, Stamps stamps);

/// Takes out a mark that should not be there, a second press by mistake: the marks after it move
/// up by one split, the first of them measured from the mark before. Throws std::out_of_range when
/// the split is not marked.
void removeMark(RunMarks& run, std::size_t split);

/// Takes back the last mark, or the start when no split is marked; nothing when there is none.
void removeLastMark(RunMarks& run);

/// Seconds of each marked split.
[[nodiscard]] std::vector<double> splitTimes(const RunMarks& run);

/// Writes the marks into a run: `times` and `cmtimes`, filled up to the splits of the course with
/// splits not taken, `splitnum`, `totaltime` and `isfullrun`.
void applyMarks(const RunMarks& run, athletedata031& record, std::int64_t totalsplits);

} // namespace kavela
