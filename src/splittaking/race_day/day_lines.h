#pragma once

#include "splittaking/race_day/film_matching.h"

#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace kavela {

/// How far a boat of the start list has come.
enum class StartState { Waiting, Filmed, Timed, NotStarted, NotFinished };

/// "waiting", "filmed", "timed", "DNS", "DNF"
[[nodiscard]] std::string_view nameOf(StartState state);

/// A start with all that is known of it.
struct DayLine {
    DayStart start;
    StartState state = StartState::Waiting;
    std::optional<DayMatch> match; ///< with its film; none without one
};

/// The starts in their order. `timed` are the ids of those whose runs are whole. A boat that was
/// timed after all did start.
[[nodiscard]] std::vector<DayLine> dayLines(const RaceDay& day, const DayMatching& matching,
                                            const std::set<std::int64_t>& timed);

/// Where the next boat stands that is filmed and not timed, behind the start of an id, and from the
/// first one on after the last; that start itself comes last. From the first one on for an id that
/// is none.
[[nodiscard]] std::optional<std::size_t> nextUntimed(std::span<const DayLine> lines,
                                                     std::int64_t behind);

/// How far behind the coach is: "4 runs waiting, the next starts in 40 s". `now` is in seconds
/// since the local midnight of the day. Of lists without times, and behind the last start, without
/// the second half.
[[nodiscard]] std::string glanceText(std::span<const DayLine> lines, double now);

} // namespace kavela
