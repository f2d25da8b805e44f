#pragma once

#include "results/team_records.h"

#include <string_view>

/// Finding what the counting rules look at.
namespace kavela {

/// The athlete's record of a category, whose label must be the same letter for letter; null when
/// the athlete does not race in it.
[[nodiscard]] const mtCatsStruct* categoryOf(const myTeamStruct& athlete, std::string_view label);

/// The athlete of a name: written just so, or else in another order, case or without accents; null
/// when there is none.
[[nodiscard]] const myTeamStruct* athleteNamed(const myTeamToSaveStruct& team,
                                               std::string_view name);

/// Whether a race is one of the championships: "EUROS" or "WCH".
[[nodiscard]] bool isChampionship(const mtRaceStruct& race);

} // namespace kavela
