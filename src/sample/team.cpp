#include "sample/team.h"

#include "common/number_text.h"
#include "results/phase_averages.h"
#include "sample/dice.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace kavela::sample {

namespace {

struct TeamCategory {
    const char* label;
    double place; ///< where the athlete usually ends
    double pace;  ///< of the category's fastest boat, against the fastest kayak
};

struct Member {
    const char* name;
    std::int64_t birthYear;
    std::vector<TeamCategory> categories;
    int seasons = 4;
    bool isRetired = false;
};

// Invented people; some of them race in the sample's split files too.
const std::vector<Member>& members() {
    static const std::vector<Member> All{
        {"THORNWICK Callum", 1998, {{"MK1", 3, 1}, {"MX1", 6, 1}}},
        {"PENTORRAN Rhys", 2001, {{"MK1", 8, 1}}},
        {"ASHFORDE Lewis", 2003, {{"MK1", 13, 1}, {"MX1", 4, 1}}},
        {"DUNBROOK Harvey", 1991, {{"MK1", 5, 1}}, 4, true},
        {"MILLBRACE Freya", 1999, {{"WK1", 4, 1.115}, {"WC1", 9, 1.185}}},
        {"HOLLOWAY-REACH Isla", 2004, {{"WK1", 15, 1.115}, {"WX1", 12, 1.115}}},
        {"CASCADE Orla", 2006, {{"WK1", 24, 1.115}}, 2},
        {"EDDELSTON Benjamin", 1997, {{"MC1", 2.5, 1.055}}},
        {"WEIRSTONE Tom", 2002, {{"MC1", 11, 1.055}}, 3},
        {"RHAEADRIG Bronwen", 2000, {{"WC1", 6, 1.185}}},
        {"SLUICEWAY Nell", 2005, {{"WC1", 14, 1.185}, {"WX1", 10, 1.115}}, 3},
        {"FENWATER Jude", 2008, {{"MK1", 40, 1}}, 1},
    };
    return All;
}

struct Stop {
    const char* event;
    const char* location;
    unsigned month;
};

constexpr Stop SlalomStops[] = {
    {"WC1", "Brückwehr", 6}, {"WC2", "Isarette", 6},    {"EUROS", "Torrent Olímpic", 5},
    {"WC3", "Mlýnice", 7},   {"WCH", "Three Weirs", 9}, {"ICF", "Highland Open", 4},
};
constexpr Stop ExtremeStops[] = {
    {"WC1", "Brückwehr", 6}, {"WC3", "Mlýnice", 7}, {"WCH", "Three Weirs", 9}};

constexpr std::size_t Splits = 5;
constexpr std::int64_t LastTeamSeason = 2025;

/// One run, so many percent behind the fastest of each split.
mtPhaseStruct runOf(const char* phase, std::int64_t place, double pace, ReferenceDate day,
                    Dice& dice) {
    mtPhaseStruct run;
    run.phase = phase;
    run.pos = place;
    run.date = day;
    for (std::size_t i = 0; i < Splits; ++i) {
        const double fastest = pace * (16 + static_cast<double>(i % 3) * 2.5);
        const double behind = std::max(
            0.0, 0.25 * static_cast<double>(std::min<std::int64_t>(place, 20)) + dice.bell(1.2));
        run.splits.push_back(roundedToHundredths(fastest * (1 + behind / 100)));
        run.pers.push_back(roundedToHundredths(behind));
        run.time += run.splits.back();
    }
    run.time = roundedToHundredths(run.time);
    if (dice.chance(0.4))
        run.pen = dice.chance(0.9) ? 2 : 50;
    return run;
}

mtRaceStruct raceOf(const Stop& stop, std::int64_t year, const TeamCategory& category, Dice& dice) {
    mtRaceStruct race{stop.location, stop.event, 0, {}};
    if (dice.chance(0.06))
        return race; // did not start: no final position
    race.finalPos = std::max<std::int64_t>(
        1, std::lround(category.place * dice.between(0.45, 1.6) + dice.bell(0.8)));
    const auto day = [&](unsigned date) {
        return referenceDate(std::chrono::year(static_cast<int>(year)) /
                                 std::chrono::month(stop.month) / std::chrono::day(date),
                             11 * 3600);
    };
    race.phases.push_back(
        runOf("Heats 1", race.finalPos + dice.code(6), category.pace * 1.02, day(12), dice));
    if (race.finalPos > 20)
        race.phases.push_back(
            runOf("Heats 2", race.finalPos - 10, category.pace * 1.02, day(12), dice));
    if (race.finalPos <= 30)
        race.phases.push_back(
            runOf("Semifinal", race.finalPos + dice.code(3), category.pace * 1.01, day(13), dice));
    if (race.finalPos <= 12)
        race.phases.push_back(runOf("Final", race.finalPos, category.pace, day(13), dice));
    return race;
}

mtSeasonStruct teamSeasonOf(std::int64_t year, const TeamCategory& category, Dice& dice) {
    mtSeasonStruct season;
    season.year = year;
    season.icfrankingpos =
        std::max<std::int64_t>(1, std::lround(category.place * 1.5)) + dice.code(5);
    season.icfrankingpoints =
        roundedToHundredths(60 + 900 / (1 + 0.12 * static_cast<double>(season.icfrankingpos)));
    const auto race = [&](const Stop& stop) {
        season.races.push_back(raceOf(stop, year, category, dice));
    };
    if (std::string_view(category.label).find('X') != std::string_view::npos)
        std::ranges::for_each(ExtremeStops, race);
    else
        std::ranges::for_each(SlalomStops, race);
    return season;
}

} // namespace

myTeamToSaveStruct sampleTeam() {
    myTeamToSaveStruct team;
    for (const Member& member : members()) {
        myTeamStruct athlete{member.name, member.birthYear, {}, member.isRetired};
        for (TeamCategory category : member.categories) {
            Dice dice(std::string("team ") + member.name + category.label);
            athlete.cats.push_back({category.label, {}, {}});
            for (int i = 0; i < member.seasons; ++i, category.place *= 1.15)
                athlete.cats.back().seasons.push_back(
                    teamSeasonOf(LastTeamSeason - i, category, dice));
        }
        recomputeAverages(athlete);
        team.realMyTeam.push_back(std::move(athlete));
    }
    return team;
}

} // namespace kavela::sample
