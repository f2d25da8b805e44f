#include "desktop/team/takeover/take_over.h"

#include "common/text.h"
#include "desktop/team/team_edits.h"
#include "results/name_likeness.h"
#include "results/phase_averages.h"
#include "results/team_seasons.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <iterator>
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

CrewOfFile crewOf(const FoundResult& found) {
    return {found.category, crewKey(found.crew)};
}

namespace {

/// Makes the lines of a plan, crew by crew.
class Planner {
public:
    Planner(const myTeamToSaveStruct& team, const RaceName& name, const ChosenByHand& chosen)
        : m_team(team), m_name(name), m_chosen(chosen), m_athletes(athletesByKey(team)) {
        for (const myTeamStruct& athlete : team.realMyTeam)
            m_names.push_back(athlete.name);
    }

    void add(const FoundResult& found) {
        Crew& crew = crewFor(found);
        if (crew.whose.to == Belonging::To::Nobody && !crew.lines.empty())
            ++crew.lines.front().more;
        else
            crew.lines.push_back(planned(found, crew));
    }

    /// Crews that are found in the team in its order, then those whose name is like one of it.
    [[nodiscard]] std::vector<PlannedResult> lines() {
        std::ranges::stable_sort(m_crews, {}, &Crew::order);
        std::vector<PlannedResult> lines;
        for (Crew& crew : m_crews)
            std::ranges::move(crew.lines, std::back_inserter(lines));
        return lines;
    }

private:
    struct Crew {
        std::size_t order = 0;
        Belonging whose;
        std::string likely;
        std::vector<PlannedResult> lines;
    };

    Crew& crewFor(const FoundResult& found) {
        const CrewOfFile key = crewOf(found);
        const auto [place, isNew] = m_places.emplace(key, m_crews.size());
        if (!isNew)
            return m_crews[place->second];
        Crew& crew = m_crews.emplace_back();
        const auto athlete = m_athletes.find(key.key);
        if (athlete != m_athletes.end()) {
            crew.whose = Belonging::toPerson(athlete->second);
            crew.order = athlete->second;
        } else {
            const auto likely = likelyName(found.crew, m_names);
            crew.likely = likely ? m_names[*likely] : std::string();
            crew.order = m_names.size() + (likely ? 0 : 1);
        }
        if (const auto chosen = m_chosen.find(key); chosen != m_chosen.end())
            crew.whose = chosen->second;
        return crew;
    }

    [[nodiscard]] PlannedResult planned(const FoundResult& found, const Crew& crew) const {
        PlannedResult planned;
        planned.found = found;
        planned.whose = crew.whose;
        if (crew.whose.to == Belonging::To::Nobody) {
            planned.likely = crew.likely;
            planned.reason = say("is not in the team");
            return planned;
        }
        if (!found.fault.empty()) {
            planned.reason = (found.run ? found.run->phase + ": " : "") + found.fault;
            return planned;
        }
        planned.isTicked = found.isSure;
        if (crew.whose.to == Belonging::To::NewPerson)
            return planned;
        const myTeamStruct& record = m_team.realMyTeam.at(crew.whose.person);
        const mtCatsStruct* const category = categoryOf(record, found.category);
        planned.addsCategory = category == nullptr;
        planned.isTicked =
            found.isSure && (category || record.cats.empty() || m_chosen.contains(crewOf(found)));
        planned.before = category ? textBefore(raceOf(*category, m_name), found) : std::string();
        return planned;
    }

    const myTeamToSaveStruct& m_team;
    const RaceName& m_name;
    const ChosenByHand& m_chosen;
    std::map<std::string, std::size_t> m_athletes;
    std::vector<std::string> m_names;
    std::map<CrewOfFile, std::size_t> m_places; ///< in the list of crews
    std::vector<Crew> m_crews;
};

} // namespace

std::vector<PlannedResult> planTakeOver(const myTeamToSaveStruct& team, const FoundRace& race,
                                        const RaceName& name, const ChosenByHand& chosen) {
    Planner planner(team, name, chosen);
    for (const FoundResult& found : race.results)
        planner.add(found);
    return planner.lines();
}

std::optional<TakenPlace> takeOver(myTeamToSaveStruct& team, std::span<const PlannedResult> planned,
                                   const RaceName& name) {
    std::optional<TakenPlace> first;
    std::map<std::string, std::size_t> added;
    std::set<std::size_t> changed;
    for (const PlannedResult& result : planned) {
        if (!result.isTicked || !result.canBeTaken())
            continue;
        std::size_t place = result.whose.person;
        if (result.whose.to == Belonging::To::NewPerson) {
            // One name in two boats is one athlete.
            const auto [entry, isNew] =
                added.emplace(crewKey(result.found.crew), team.realMyTeam.size());
            if (isNew)
                team.realMyTeam.push_back({result.found.crew, 0, {}, false});
            place = entry->second;
        }
        myTeamStruct& athlete = team.realMyTeam.at(place);
        mtRaceStruct& race = raceIn(categoryIn(athlete, result.found.category), name);
        if (result.found.run)
            enter(*result.found.run, phaseIn(race, result.found.run->phase));
        else
            race.finalPos = result.found.finalPos;
        changed.insert(place);
        if (!first)
            first = TakenPlace{place, result.found.category};
    }
    for (const std::size_t athlete : changed)
        recomputeAverages(team.realMyTeam[athlete]);
    return first;
}

} // namespace kavela::desktop
