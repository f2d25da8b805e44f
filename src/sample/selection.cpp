#include "sample/selection.h"

#include "common/folded_text.h"
#include "common/json_encode.h"
#include "common/number_text.h"
#include "common/record_convert.h"
#include "results/history/selection_history.h"
#include "results/selection_attach.h"
#include "sample/athletes.h"
#include "sample/dice.h"
#include "sample/races.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <array>

namespace kavela::sample {

namespace {

struct Category {
    const char* label;
    const char* boats; ///< what the split files call it; extreme slalom has none there
    std::size_t athletes;
};

constexpr std::array Categories{
    Category{"MK1", "K1M", 12}, Category{"WK1", "K1W", 8}, Category{"MC1", "C1M", 7},
    Category{"WC1", "C1W", 6},  Category{"MX1", "K1M", 6},
};
constexpr std::array Clubs{"Old Mill CC", "Riverside Paddlers", "Highland WWC", "Harbour SC",
                           "Upper Weir KC"};
constexpr double BestTime = 92;

/// "Ann Ada Lee" is "LEE Ann Ada".
std::string surnameFirst(const std::string& name) {
    const std::size_t blank = name.rfind(' ');
    return inCapitals(name.substr(blank + 1)) + ' ' + name.substr(0, blank);
}

bool isInLatinLetters(const std::string& name) {
    return std::ranges::all_of(folded(name),
                               [](char c) { return static_cast<signed char>(c) > 0; });
}

void addBoat(selectionracesStruct_v3& document, std::size_t category, const Boat& boat) {
    Dice dice("selected " + boat.names.front() + document.categories[category].cat);
    NewAthlete athlete;
    athlete.name = surnameFirst(boat.names.front());
    athlete.birthYear = 1994 + dice.code(15);
    athlete.club = Clubs[dice.below(Clubs.size())];
    const bool isFirst = document.categories[category].athletes.empty();
    athlete.preselected = {isFirst, dice.chance(0.15)};
    athlete.bonuses = {dice.chance(0.25) ? roundedToHundredths(dice.between(0, 2)) : NoBonus,
                       dice.chance(0.15) ? 0.0 : NoBonus};
    (void)addAthlete(document, category, std::move(athlete));
}

/// Sends an athlete down a race's course; who does not finish has no result.
void race(selectionracesStruct_v3& document, const ResultPlace& place, double pace, Dice& dice) {
    if (dice.chance(0.07))
        return clearResult(document, place);
    const double time = roundedToHundredths(
        BestTime * pace * (1 + 0.006 * static_cast<double>(place.athlete) + dice.between(0, 0.03)));
    const std::int64_t penalty = dice.chance(0.35) ? 2 : dice.chance(0.04) ? 50 : 0;
    setResult(document, place, time, penalty,
              roundedToHundredths(time * dice.between(0.975, 0.998)));
}

/// The opener's split file tells no expected times: they came from somewhere else.
void addExpectedTimes(selectionracesStruct_v3& document, std::size_t race) {
    Dice dice("expected");
    for (srCategoryStruct_v3& category : document.categories)
        for (srAthleteStruct_v3& athlete : category.athletes)
            if (saRaceStruct& result = athlete.racedata[race]; !isMissing(result))
                result.xTime = roundedToHundredths(result.resultTime * dice.between(0.975, 0.998));
}

void holdRaces(selectionracesStruct_v3& document, std::size_t firstRace) {
    for (std::size_t c = 0; c < document.categories.size(); ++c) {
        Dice dice("selection " + std::to_string(document.year) + document.categories[c].cat);
        const bool isExtreme = document.categories[c].cat == "MX1";
        const double pace = isExtreme ? 0.62 : sampleBoats(Categories[c].boats).front().pace;
        for (std::size_t r = isExtreme ? 0 : firstRace; r < document.races.size(); ++r)
            for (std::size_t a = 0; a < document.categories[c].athletes.size(); ++a)
                race(document, {c, a, r}, pace, dice);
    }
}

/// Two athletes of the same results, and one with a result in the last race only.
void makeSpecialCases(std::vector<srAthleteStruct_v3>& athletes) {
    athletes[3].racedata = athletes[2].racedata;
    for (std::size_t r = 0; r + 1 < athletes.back().racedata.size(); ++r)
        athletes.back().racedata[r] = missingResult();
}

selectionracesStruct_v3 selectionWithAthletes(std::int64_t year,
                                              const std::vector<std::string>& races) {
    selectionracesStruct_v3 document;
    document.year = year;
    for (const std::string& name : races)
        addRace(document, name);
    for (const Category& category : Categories) {
        const std::size_t index = categoryIndex(document, category.label);
        for (const Boat& boat : sampleBoats(category.boats))
            if (document.categories[index].athletes.size() < category.athletes &&
                isInLatinLetters(boat.names.front()))
                addBoat(document, index, boat);
    }
    return document;
}

selectionracesStruct_v3 formerSelection(std::int64_t year) {
    selectionracesStruct_v3 document =
        selectionWithAthletes(year, {"Mill Days", "River Open", "Autumn Doubles"});
    document.rules = "The two best of three races count.";
    holdRaces(document, 0);
    recomputeSelection(document, {});
    return document;
}

/// The first layout had one flag for all groups.
history::selectionracesStruct asVersion1(selectionracesStruct_v3 document) {
    history::selectionracesStruct old{document.year, document.rules, document.races, {}};
    for (srCategoryStruct_v3& category : document.categories) {
        old.categories.push_back({category.cat, {}});
        for (srAthleteStruct_v3& athlete : category.athletes)
            old.categories.back().athletes.push_back(
                {athlete.name, athlete.year, athlete.club, std::move(athlete.racedata),
                 std::ranges::count(athlete.preselected, true) > 0, athlete.result});
    }
    return old;
}

} // namespace

selectionracesStruct_v3 springSelection() {
    selectionracesStruct_v3 document = selectionWithAthletes(
        2026, {"Spring Opener", "Riverside Trial", "Highland Trial", "Harbour Trial"});
    document.rules = "The three best of four races count.\nA bonus of the first kind is earned at "
                     "last year's championships, one of the second kind in the world ranking.";
    (void)attachRace(document, 0, std::array{holdRace(springOpener())});
    holdRaces(document, 1);
    addExpectedTimes(document, 0);
    makeSpecialCases(document.categories[1].athletes);
    for (std::size_t r = 0; r < document.races.size(); ++r)
        rankRace(document, r);
    recomputeSelection(document, {});
    return document;
}

std::vector<OldSelection> oldSelections() {
    return {{"2", encode(converted<history::selectionracesStruct_v2>(formerSelection(2024)))},
            {"1", encode(asVersion1(formerSelection(2022)))}};
}

} // namespace kavela::sample
