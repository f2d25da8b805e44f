#pragma once

#include "desktop/splitfile/taking_state.h"
#include "performance/official_differences.h"
#include "splittaking/results_import.h"
#include "splittaking/results_match.h"

#include <functional>
#include <optional>

/// What edits make of a split file in the making. Each leaves the state that it is given alone and
/// shares with it what stays.
namespace kavela::desktop {

/// Throws std::out_of_range for a run that is not there.
[[nodiscard]] TakingState withRun(const TakingState& before, std::size_t run,
                                  const std::function<void(athletedata031&)>& change);
[[nodiscard]] TakingState withEveryRun(const TakingState& before,
                                       const std::function<void(athletedata031&)>& change);
[[nodiscard]] TakingState withCross(const TakingState& before, TrialStarts starts,
                                    const std::function<void(crossdata030&)>& change);

/// Runs are fitted to another course: their penalties to its gates, their marks to its splits.
[[nodiscard]] TakingState withInfo(const TakingState& before,
                                   const std::function<void(infodata031&)>& change);

/// Notes count from the start of their run, and move with it. Throws std::out_of_range for a run
/// that is not there.
[[nodiscard]] TakingState withMarks(const TakingState& before, std::size_t run,
                                    const RunMarks& marks);

/// With the runs at the end of the list, fitted to the gates of the course.
[[nodiscard]] TakingState withMoreRuns(const TakingState& before, std::vector<athletedata031> runs);

/// Throws std::out_of_range for a run that is not there.
[[nodiscard]] TakingState withoutRun(const TakingState& before, std::size_t run);
/// With a run at another place of the list. Throws std::out_of_range for places that are not there.
[[nodiscard]] TakingState withRunMoved(const TakingState& before, std::size_t run, std::size_t to);
/// With the runs of another race behind its own; a state without any becomes that race, and keeps
/// its day.
[[nodiscard]] TakingState withRace(const TakingState& before, TakingState race);

/// Adds the lines of an official list to the race, and real time and penalty to the runs that have
/// one of them. Throws std::out_of_range for a run or line that is not there.
[[nodiscard]] TakingState withResults(const TakingState& before, const ResultsList& list,
                                      const std::vector<ResultOfRun>& runs);

/// One difference to official results taken over; nothing where that cannot be.
[[nodiscard]] std::optional<TakingState> withOfficial(const TakingState& before,
                                                      const OfficialDifference& difference);

} // namespace kavela::desktop
