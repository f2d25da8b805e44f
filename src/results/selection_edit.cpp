#include "results/selection_edit.h"

#include "results/list_lines.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>

namespace kavela {

namespace {

template <class List>
void removeAt(List& list, std::size_t at) {
    if (at < list.size())
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(at));
}

template <class List>
void fillUp(List& list, std::size_t size, typename List::value_type value) {
    if (list.size() < size)
        list.resize(size, value);
}

template <class Change>
void changeAthletes(selectionracesStruct_v3& document, Change change) {
    for (srCategoryStruct_v3& category : document.categories)
        for (srAthleteStruct_v3& athlete : category.athletes)
            change(athlete);
}

saRaceStruct& resultAt(selectionracesStruct_v3& document, const ResultPlace& place) {
    srAthleteStruct_v3& athlete = document.categories.at(place.category).athletes.at(place.athlete);
    fillUp(athlete.racedata, place.race + 1, missingResult());
    return athlete.racedata[place.race];
}

} // namespace

void addRace(selectionracesStruct_v3& document, std::string location) {
    const std::size_t before = document.races.size();
    const std::vector<double> bests(document.categories.size(), BestOfNobody);
    document.races.push_back({std::move(location), bests, bests});
    changeAthletes(document, [&](srAthleteStruct_v3& athlete) {
        athlete.racedata.resize(before, missingResult());
        athlete.racedata.push_back(missingResult());
    });
}

void removeRace(selectionracesStruct_v3& document, std::size_t race) {
    removeAt(document.races, race);
    changeAthletes(document,
                   [&](srAthleteStruct_v3& athlete) { removeAt(athlete.racedata, race); });
}

std::size_t categoryIndex(selectionracesStruct_v3& document, std::string_view label) {
    const auto found = std::ranges::find(
        document.categories, categoryKey(label),
        [](const srCategoryStruct_v3& category) { return categoryKey(category.cat); });
    const auto index = static_cast<std::size_t>(found - document.categories.begin());
    if (found == document.categories.end()) {
        document.categories.push_back({std::string(label), {}});
        for (sRaceStruct& race : document.races) {
            fillUp(race.bestTimes, index + 1, BestOfNobody);
            fillUp(race.bestxTimes, index + 1, BestOfNobody);
        }
    }
    return index;
}

void removeCategory(selectionracesStruct_v3& document, std::size_t category) {
    removeAt(document.categories, category);
    for (sRaceStruct& race : document.races) {
        removeAt(race.bestTimes, category);
        removeAt(race.bestxTimes, category);
    }
}

bool addAthlete(selectionracesStruct_v3& document, std::size_t category, NewAthlete athlete) {
    if (document.races.empty())
        return false;
    srAthleteStruct_v3 record;
    record.name = std::move(athlete.name);
    record.year = athlete.birthYear;
    record.club = std::move(athlete.club);
    record.racedata.assign(document.races.size(), missingResult());
    record.preselected = std::move(athlete.preselected);
    fillUp(record.preselected, std::max<std::size_t>(1, preselectionGroups(document)), false);
    record.bonuses = std::move(athlete.bonuses);
    fillUp(record.bonuses, bonusKinds(document), NoBonus);
    record.result = scoreOf(record, document.races.size(), {}).score;
    document.categories.at(category).athletes.push_back(std::move(record));
    return true;
}

bool hasAthlete(const srCategoryStruct_v3& category, std::string_view name) {
    const std::string key = crewKey(name);
    return std::ranges::any_of(category.athletes, [&](const srAthleteStruct_v3& athlete) {
        return crewKey(athlete.name) == key;
    });
}

void setResult(selectionracesStruct_v3& document, const ResultPlace& place, double time,
               std::int64_t penalty, double expectedTime) {
    saRaceStruct& result = resultAt(document, place);
    result.resultTime = time;
    result.pen = penalty;
    result.xTime = expectedTime;
    rankRace(document, place.race);
}

void clearResult(selectionracesStruct_v3& document, const ResultPlace& place) {
    saRaceStruct& result = resultAt(document, place);
    const std::int64_t points = result.points;
    result = missingResult();
    result.points = points;
    rankRace(document, place.race);
}

std::vector<ResultPlace> zeroResults(const selectionracesStruct_v3& document) {
    std::vector<ResultPlace> places;
    for (std::size_t c = 0; c < document.categories.size(); ++c) {
        const auto& athletes = document.categories[c].athletes;
        for (std::size_t a = 0; a < athletes.size(); ++a) {
            const auto& results = athletes[a].racedata;
            for (std::size_t r = 0; r < std::min(results.size(), document.races.size()); ++r)
                if (isZero(results[r]))
                    places.push_back({c, a, r});
        }
    }
    return places;
}

std::vector<std::string> ageGroups(std::string_view birthYear) {
    std::vector<std::string> groups{"Senior"};
    std::int64_t year = 0;
    if (!parseField(birthYear, year))
        return groups;
    if (std::ranges::count(Under23Years, year) > 0)
        groups.emplace_back("U23");
    if (std::ranges::count(JuniorYears, year) > 0)
        groups.emplace_back("Junior");
    return groups;
}

} // namespace kavela
