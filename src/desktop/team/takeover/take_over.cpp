#include "desktop/team/takeover/take_over.h"

#include "desktop/team/team_edits.h"
#include "results/athlete_keys.h"
#include "results/phase_averages.h"
#include "results/team_seasons.h"

#include <algorithm>
#include <map>
#include <set>

namespace kavela::desktop {

namespace {

/// Athletes by the key of their name; the first where two have the same.
std::map<std::string, std::size_t> athletesByKey(const myTeamToSaveStruct& team) {
    std::map<std::string, std::size_t> athletes;
    for (std::size_t i = 0; i < team.realMyTeam.size(); ++i)
        athletes.emplace(crewKey(team.realMyTeam[i].name), i);
    return athletes;
}

const mtRaceStruct* raceOf(const mtCatsStruct& category, const RaceName& name) {
    const auto season = std::ranges::find(category.seasons, name.year, &mtSeasonStruct::year);
    if (season == category.seasons.end())
        return nullptr;
    const auto race = raceAt(*season, name.event, name.location);
    return race ? &season->races[*race] : nullptr;
}

/// What the team has in the place of a result.
std::string textBefore(const mtRaceStruct* race, const FoundResult& found) {
    FoundResult before = found;
    if (!race)
        return {};
    before.finalPos = race->finalPos;
    if (found.run) {
        const auto run = std::ranges::find(race->phases, found.run->phase, &mtPhaseStruct::phase);
        if (run == race->phases.end())
            return {};
        before.run = *run;
    }
    return resultText(before);
}

/// The race of an athlete, added where it is missing.
mtRaceStruct& raceIn(mtCatsStruct& category, const RaceName& name) {
    mtSeasonStruct& season = seasonIn(category, name.year);
    if (const auto race = raceAt(season, name.event, name.location))
        return season.races[*race];
    mtRaceStruct race;
    race.event = name.event;
    race.location = name.location;
    return season.races.emplace_back(std::move(race));
}

/// An official list knows no splits; those that are there stay.
void enter(const mtPhaseStruct& found, mtPhaseStruct& run) {
    mtPhaseStruct after = found;
    if (after.splits.empty()) {
        after.splits = std::move(run.splits);
        after.pers = std::move(run.pers);
    }
    run = std::move(after);
}

} // namespace

std::string resultText(const FoundResult& result) {
    if (result.run)
        return runText(*result.run);
    return result.finalPos > 0 ? std::to_string(result.finalPos) + "." : std::string();
}

TakeOverPlan planTakeOver(const myTeamToSaveStruct& team, const FoundRace& race,
                          const RaceName& name) {
    const auto athletes = athletesByKey(team);
    TakeOverPlan plan;
    std::set<std::pair<std::string, std::string>> strangers;
    for (const FoundResult& found : race.results) {
        const auto athlete = athletes.find(crewKey(found.crew));
        if (athlete == athletes.end()) {
            if (strangers.emplace(found.category, found.crew).second)
                plan.notTaken.push_back({found.crew, found.category, "is not in the team"});
            continue;
        }
        if (!found.fault.empty()) {
            plan.notTaken.push_back({found.crew, found.category,
                                     (found.run ? found.run->phase + ": " : "") + found.fault});
            continue;
        }
        PlannedResult planned{found, athlete->second, false, {}, found.isSure};
        const myTeamStruct& record = team.realMyTeam[athlete->second];
        const mtCatsStruct* const category = categoryOf(record, found.category);
        planned.addsCategory = category == nullptr;
        planned.isTicked = found.isSure && (category || record.cats.empty());
        planned.before = category ? textBefore(raceOf(*category, name), found) : std::string();
        plan.planned.push_back(std::move(planned));
    }
    std::ranges::stable_sort(plan.planned, {}, &PlannedResult::athlete);
    return plan;
}

void takeOver(myTeamToSaveStruct& team, std::span<const PlannedResult> planned,
              const RaceName& name) {
    std::set<std::size_t> changed;
    for (const PlannedResult& result : planned) {
        if (!result.isTicked)
            continue;
        myTeamStruct& athlete = team.realMyTeam.at(result.athlete);
        mtRaceStruct& race = raceIn(categoryIn(athlete, result.found.category), name);
        if (result.found.run)
            enter(*result.found.run, phaseIn(race, result.found.run->phase));
        else
            race.finalPos = result.found.finalPos;
        changed.insert(result.athlete);
    }
    for (const std::size_t athlete : changed)
        recomputeAverages(team.realMyTeam[athlete]);
}

} // namespace kavela::desktop
