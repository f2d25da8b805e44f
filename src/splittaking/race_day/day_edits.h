#pragma once

#include "splittaking/race_day/day_lines.h"

#include <string>
#include <string_view>

/// What the coach makes of a day. Each gives the day that comes of it.
namespace kavela {

/// Marks a boat as DidNotStart or DidNotFinish; one that is marked so already counts again.
[[nodiscard]] RaceDay withOut(RaceDay day, std::int64_t start, std::string_view out);

/// The film shows these starts and no others, and they are on no other film: one that showed them
/// shows what is left of it. A film that was agreed to is not any more.
[[nodiscard]] RaceDay withFilm(RaceDay day, const std::string& from,
                               const std::vector<std::int64_t>& starts);

/// The same for one more boat on the film, behind those that it shows.
[[nodiscard]] RaceDay withFilmToo(RaceDay day, const std::string& from, std::int64_t start);

/// The match becomes what it says, with every boat of its film.
[[nodiscard]] RaceDay withKept(RaceDay day, const DayMatching& matching, const std::string& from);

/// Moves the films of a start and of all behind it one boat down the list (`step` 1) or up (-1).
/// Boats that did not start are passed over. A film that has no boat to go to shows none then. The
/// films in front of the start are kept as they are.
[[nodiscard]] RaceDay withShift(RaceDay day, const DayMatching& matching, std::int64_t start,
                                int step);

/// Without a boat of the list, which is on no film then either.
[[nodiscard]] RaceDay withoutStart(RaceDay day, std::int64_t start);

/// The offset of the camera's clock is as said.
[[nodiscard]] RaceDay withOffset(RaceDay day, double seconds);

/// What is settled of a film, to be changed; it is added where nothing was settled of it.
[[nodiscard]] DayFilm& filmFrom(RaceDay& day, const std::string& from);

} // namespace kavela
