#include "subjects.h"

#include "performance/season.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <random>
#include <string>

/// How a team's athletes stand: every figure of a season, and the places of a large field. The peer
/// of the places throws dice for 20,000 races.
namespace kavela::bench {

namespace {

constexpr int ComparedRaces = 200;
constexpr int RacesAYear = 20;
constexpr int TeamAthletes = 12;
constexpr int DiceRaces = 20'000;

std::string nameOf(int boat) {
    const std::string number = std::to_string(boat);
    return "Boat" + number + " Racer" + number;
}

splittakerdata031 raceOf(int number, int boats, std::mt19937& dice) {
    using namespace std::chrono;
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.place = "Place " + std::to_string(number);
    race.info.category = "K1W";
    const sys_days day =
        sys_days(year(2015 + number / RacesAYear) / 4 / 1) + days(7 * (number % RacesAYear));
    race.info.date = referenceDate(year_month_day(day), 43'200);
    std::normal_distribution<double> form(0, 0.012);
    for (int boat = 0; boat < boats; ++boat) {
        athletedata031 run;
        run.names = {nameOf(boat)};
        run.phase = "Final";
        run.sectioninfo.realtime =
            std::round(9500 * (1 + 0.004 * boat) * std::exp(form(dice))) / 100;
        run.sectioninfo.realpen = dice() % 4 == 0 ? 2 : 0;
        race.athletes.push_back(run);
    }
    return race;
}

class ComparedSeason {
public:
    explicit ComparedSeason(int boats) {
        std::mt19937 dice(5);
        for (int race = 0; race < ComparedRaces; ++race)
            m_facts.add(raceOf(race, boats, dice), std::to_string(race) + ".kvx");
        for (int boat = 0; boat < TeamAthletes; ++boat)
            m_team.realMyTeam.push_back({nameOf(boat), 2000, {{"WK1", {}, {}}}, false});
    }

    [[nodiscard]] SeasonData data() const {
        return seasonData(m_team, m_facts, {.category = "K1W"});
    }

private:
    FactStore m_facts;
    myTeamToSaveStruct m_team;
};

void compareSeason(benchmark::State& state) {
    const ComparedSeason season(TeamAthletes);
    for ([[maybe_unused]] const auto iteration : state)
        if (seasonOf(season.data()).athletes.size() != TeamAthletes)
            state.SkipWithError("an athlete is missing");
}

void expectPlaces(benchmark::State& state) {
    const ComparedSeason made{int(LargestField)};
    const Season season = seasonOf(made.data());
    for ([[maybe_unused]] const auto iteration : state)
        if (seasonPlaces(season.data, season.spread).boats.size() != LargestField)
            state.SkipWithError("a boat is missing");
}

void throwDice(benchmark::State& state) {
    const ComparedSeason made{int(LargestField)};
    const Season season = seasonOf(made.data());
    std::mt19937 dice(6);
    std::normal_distribution<double> normal;
    for ([[maybe_unused]] const auto iteration : state) {
        std::vector<double> places(season.places.boats.size());
        for (int race = 0; race < DiceRaces; ++race) {
            std::vector<std::pair<double, std::size_t>> finish;
            for (std::size_t boat = 0; boat < season.places.boats.size(); ++boat) {
                const ExpectedPlace& known = season.places.boats[boat];
                finish.emplace_back(known.mean + known.sd * normal(dice), boat);
            }
            std::ranges::sort(finish);
            for (std::size_t place = 0; place < finish.size(); ++place)
                places[finish[place].second] += double(place + 1) / DiceRaces;
        }
        benchmark::DoNotOptimize(places);
    }
}

} // namespace

void addComparedSeason() {
    benchmark::RegisterBenchmark("season/compared", compareSeason);
    benchmark::RegisterBenchmark("season/places", expectPlaces);
    benchmark::RegisterBenchmark("season/places_by_dice", throwDice);
}

} // namespace kavela::bench
