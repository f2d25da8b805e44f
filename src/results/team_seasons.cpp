#include "results/team_seasons.h"

#include "splitdata/athlete_keys.h"

#include <algorithm>

namespace kavela {

const mtCatsStruct* categoryOf(const myTeamStruct& athlete, std::string_view label) {
    const auto found = std::ranges::find(athlete.cats, label, &mtCatsStruct::cat);
    return found == athlete.cats.end() ? nullptr : &*found;
}

const myTeamStruct* athleteNamed(const myTeamToSaveStruct& team, std::string_view name) {
    const auto& athletes = team.realMyTeam;
    auto found = std::ranges::find(athletes, name, &myTeamStruct::name);
    if (found == athletes.end()) {
        const std::string key = crewKey(name);
        found = std::ranges::find_if(
            athletes, [&](const myTeamStruct& athlete) { return crewKey(athlete.name) == key; });
    }
    return found == athletes.end() ? nullptr : &*found;
}

bool isChampionship(const mtRaceStruct& race) {
    return race.event == "EUROS" || race.event == "WCH";
}

} // namespace kavela
