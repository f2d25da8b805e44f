#pragma once

#include "splittaking/annotations/film_marks.h"

/// Time lost on a stretch against another run, from the start and the end of the stretch on both
/// films. In the record the run's own film and marks come first, then the other run's.
namespace kavela {

enum class LossMark { OwnStart, OwnEnd, VersusStart, VersusEnd };

/// The places of the two runs in the lists of a time loss.
inline constexpr std::size_t OwnSide = 0;
inline constexpr std::size_t VersusSide = 1;

/// The mark; nothing when it was not taken.
[[nodiscard]] std::optional<CMTime> markOf(const timeloss031& loss, LossMark which);

/// Takes or moves a mark and computes the loss anew.
void setMark(timeloss031& loss, LossMark which, const CMTime& moment);

/// Takes a mark out and computes the loss anew.
void clearMark(timeloss031& loss, LossMark which);

/// The seconds of a run's stretch (OwnSide, VersusSide); nothing without both marks. Below 0 where
/// they are swapped.
[[nodiscard]] std::optional<double> stretchSeconds(const timeloss031& loss, std::size_t side);

/// Sets `timeloss` to the difference of the two stretches, below 0 for time gained, and
/// `timelossper` to its percentage of the other run's. Both are 0 while a mark is missing, the
/// percentage also without a duration to compare with.
void recompute(timeloss031& loss);

/// What is wrong with the marks, for the coach; nothing when they are fine.
[[nodiscard]] std::optional<std::string> faultOfMarks(const timeloss031& loss);

/// A loss against another run without marks: the names and the first camera's films.
[[nodiscard]] timeloss031 lossAgainst(const athletedata031& run, const athletedata031& versus);

/// The same with the marks of a split, counted from 1, of both runs, as far as they were taken.
[[nodiscard]] timeloss031 lossOverSplit(const athletedata031& run, const athletedata031& versus,
                                        std::size_t split);

/// Removes a loss of the run. Throws std::out_of_range when there is none with this number,
/// counted from 0.
void removeTimeLoss(athletedata031& run, std::size_t loss);

/// Adds a reason to a loss, or takes it away when it is there.
void toggleReason(timeloss031& loss, const std::string& reason);

} // namespace kavela
