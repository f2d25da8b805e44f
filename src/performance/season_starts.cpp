#include "performance/season_starts.h"

#include "performance/season_days.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// From the first heats to the final.
constexpr double MostDaysOfRace = 3;

/// Somebody who is only listed has neither a time nor a place nor a penalty. One that was not
/// finished has a time that is none, or those of the first sections.
bool isPhaseStarted(const mtPhaseStruct& phase) {
    return phase.time > 0 || phase.pen > 0 || phase.pos > 0;
}

bool isRunStarted(const FactStore& facts, const RunRow& run) {
    if (run.isComplete || isTakenTime(run.realtime))
        return true;
    const auto isTimed = [](const SectionRow& section) { return isTakenTime(section.time); };
    const auto hasPenalty = [](std::int64_t pen) { return pen > 0; };
    return std::ranges::any_of(facts.sectionsOf(run), isTimed) ||
           std::ranges::any_of(facts.pensOf(run), hasPenalty);
}

/// A day that the team did not fill in says nothing.
std::optional<double> dayIn(std::int64_t year, ReferenceDate date) {
    return yearOfDate(date) == year ? std::optional(seasonDay(date)) : std::nullopt;
}

/// What a file's race is called: its place, and its title.
std::vector<std::string> placesOfFile(const FactStore& facts, const FileRow& file) {
    std::vector<std::string> places{bareKey(facts.text(file.place)),
                                    bareKey(facts.text(file.title))};
    std::erase(places, std::string());
    return places;
}

} // namespace

SeasonStarts::SeasonStarts(const myTeamToSaveStruct& team, const FactStore& facts,
                           const SeasonChoice& choice)
    : m_key(crewKey(choice.starter)) {
    addTeam(team, choice);
    addFiles(facts, choice);
}

void SeasonStarts::addTeam(const myTeamToSaveStruct& team, const SeasonChoice& choice) {
    for (const myTeamStruct& athlete : team.realMyTeam)
        for (const mtCatsStruct& category : athlete.cats) {
            if (crewKey(athlete.name) != m_key ||
                categoryKey(category.cat) != categoryKey(choice.category))
                continue;
            for (const mtSeasonStruct& season : category.seasons)
                for (const mtRaceStruct& race : season.races)
                    for (const mtPhaseStruct& phase : race.phases)
                        if (isPhaseStarted(phase)) {
                            add(bareKey(race.location),
                                {season.year, dayIn(season.year, phase.date)});
                            m_name = m_name.value_or(athlete.name);
                        }
        }
}

void SeasonStarts::addFiles(const FactStore& facts, const SeasonChoice& choice) {
    const std::string category = categoryKey(choice.category);
    for (const RunRow& run : facts.runs()) {
        const FileRow& file = facts.fileOf(run);
        if (facts.text(run.crewKey) != m_key || facts.text(run.categoryKey) != category ||
            !isSeasonRace(facts, file) || !isRunStarted(facts, run))
            continue;
        const ReferenceDate date{file.date};
        for (const std::string& place : placesOfFile(facts, file))
            add(place, {yearOfDate(date), seasonDay(date)});
        m_name = m_name.value_or(std::string(facts.text(run.crew)));
    }
}

void SeasonStarts::add(const std::string& place, const Start& start) {
    m_starts[place].push_back(start);
}

bool SeasonStarts::has(const std::string& place, const Start& asked) const {
    const auto found = m_starts.find(place);
    return found != m_starts.end() && std::ranges::any_of(found->second, [&](const Start& start) {
               return start.day && asked.day ? std::abs(*start.day - *asked.day) <= MostDaysOfRace
                                             : start.year == asked.year;
           });
}

bool SeasonStarts::has(const FactStore& facts, const FileRow& file) const {
    const ReferenceDate date{file.date};
    return std::ranges::any_of(placesOfFile(facts, file), [&](const std::string& place) {
        return has(place, {yearOfDate(date), seasonDay(date)});
    });
}

bool SeasonStarts::has(const RaceResult& race) const {
    const std::string place = bareKey(race.location);
    if (race.phases.empty())
        return has(place, {race.year, std::nullopt});
    return std::ranges::any_of(race.phases, [&](const PhaseResult& phase) {
        return has(place, {race.year, dayIn(race.year, phase.date)});
    });
}

} // namespace kavela
