#pragma once

#include "results/team_records.h"

#include <optional>
#include <string>
#include <string_view>

/// Changes of team records, and what is read from them for the window.
namespace kavela::desktop {

/// Seasons that the categorization counts, from the front.
inline constexpr std::size_t CountedSeasons = 2;

/// The athlete's record of a category, added at the end where there is none.
[[nodiscard]] mtCatsStruct& categoryIn(myTeamStruct& athlete, std::string_view label);

/// The season of a year, added where there is none: in front of the first older one, so that in a
/// list from the latest down it takes its place.
[[nodiscard]] mtSeasonStruct& seasonIn(mtCatsStruct& category, std::int64_t year);

/// Where the race of an event at a place stands, however the place is written.
[[nodiscard]] std::optional<std::size_t> raceAt(const mtSeasonStruct& season,
                                                std::string_view event, std::string_view location);

/// The run of a phase, added in the order of the phases where there is none.
[[nodiscard]] mtPhaseStruct& phaseIn(mtRaceStruct& race, std::string_view phase);

/// Takes the runs out of which nothing but the day is known.
void dropEmptyPhases(mtRaceStruct& race);

/// Percent behind the fastest over the whole run; none without percentages for all of it.
[[nodiscard]] std::optional<double> percentBehindOf(const mtPhaseStruct& run);

/// A run in a few characters: position, time and penalty, as far as they are known.
[[nodiscard]] std::string runText(const mtPhaseStruct& run);

/// Moves an entry of a list to a place, which is counted after it was taken out.
template <class T>
void moveEntry(std::vector<T>& list, std::size_t from, std::size_t to) {
    T entry = std::move(list.at(from));
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(from));
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(to), std::move(entry));
}

} // namespace kavela::desktop
