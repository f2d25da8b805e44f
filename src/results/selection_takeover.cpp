#include "results/selection_takeover.h"

#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <map>

namespace kavela {

namespace {

/// The best run of every athlete; new athletes are added on the way.
std::map<AthletePlace, const FoundRun*> bestRuns(selectionracesStruct_v3& document,
                                                 const FoundRuns& found) {
    std::map<AthletePlace, const FoundRun*> best;
    for (const FoundRun& run : found.runs) {
        if (!run.isTaken())
            continue;
        auto place = run.athlete ? run.athlete : athleteOf(document, run.category, run.name);
        if (!place) {
            const std::size_t category = categoryIndex(document, run.category);
            if (!addAthlete(document, category, {run.name, 0, {}, {}, {}}))
                continue;
            place = {category, document.categories[category].athletes.size() - 1};
        }
        const FoundRun*& held = best[*place];
        if (!held || run.total() < held->total())
            held = &run;
    }
    return best;
}

saRaceStruct& takenResultAt(selectionracesStruct_v3& document, const AthletePlace& place,
                            std::size_t race) {
    auto& results = document.categories.at(place.category).athletes.at(place.athlete).racedata;
    if (results.size() <= race)
        results.resize(race + 1, missingResult());
    return results[race];
}

} // namespace

std::optional<AthletePlace> athleteOf(const selectionracesStruct_v3& document,
                                      const std::string& category, const std::string& name) {
    const std::string label = categoryKey(category);
    const std::string key = crewKey(name);
    for (std::size_t c = 0; c < document.categories.size(); ++c) {
        if (categoryKey(document.categories[c].cat) != label)
            continue;
        const auto& athletes = document.categories[c].athletes;
        const auto found = std::ranges::find(
            athletes, key, [](const srAthleteStruct_v3& athlete) { return crewKey(athlete.name); });
        if (found != athletes.end())
            return AthletePlace{c, static_cast<std::size_t>(found - athletes.begin())};
    }
    return std::nullopt;
}

std::vector<AthletePlace> withoutRun(const selectionracesStruct_v3& document, std::size_t race,
                                     const FoundRuns& found) {
    std::vector<AthletePlace> places;
    if (!found.isWholeRace)
        return places;
    const auto hasRun = [&](const AthletePlace& place) {
        return std::ranges::any_of(
            found.runs, [&](const FoundRun& run) { return run.isTaken() && run.athlete == place; });
    };
    for (std::size_t c = 0; c < document.categories.size(); ++c) {
        const bool isRaced = std::ranges::find(found.raced, c) != found.raced.end();
        const auto& athletes = document.categories[c].athletes;
        for (std::size_t a = 0; a < athletes.size(); ++a) {
            const auto& results = athletes[a].racedata;
            const bool isEmpty = race < results.size() && isZero(results[race]);
            const bool isKept =
                std::ranges::find(found.kept, AthletePlace{c, a}) != found.kept.end();
            if ((isRaced || isEmpty) && !isKept && !hasRun({c, a}))
                places.push_back({c, a});
        }
    }
    return places;
}

EnteredRuns enterRuns(selectionracesStruct_v3& document, std::size_t race, const FoundRuns& found) {
    EnteredRuns entered;
    const std::vector<AthletePlace> without = withoutRun(document, race, found);
    for (const auto& [place, run] : bestRuns(document, found)) {
        saRaceStruct& result = takenResultAt(document, place, race);
        const ResultPlace at{place.category, place.athlete, race};
        result.resultTime = run->time;
        result.pen = run->penalty;
        if (run->expectedTime)
            result.xTime = *run->expectedTime;
        else if (result.xTime > 0 && result.xTime != MissingTime)
            entered.keptExpected.push_back(at);
        entered.results.push_back(at);
    }
    for (const AthletePlace& place : without) {
        clearResult(document, {place.category, place.athlete, race});
        entered.missing.push_back({place.category, place.athlete, race});
    }
    rankRace(document, race);
    return entered;
}

} // namespace kavela
