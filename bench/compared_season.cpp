#include "subjects.h"

#include "performance/season.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <random>
#include <string>
#include <tuple>
#include <vector>

/// How a team's athletes stand: every figure of a season, and the places of a large field. The peer
/// of the places throws dice for 20,000 races, which have to come to the same places.
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

/// What the dice say of a boat.
struct ThrownPlace {
    double sum = 0; ///< of its places
    double squares = 0;

    [[nodiscard]] double mean() const { return sum / DiceRaces; }
    [[nodiscard]] double standardError() const {
        const double variance = std::max(0.0, squares / DiceRaces - mean() * mean());
        return std::sqrt(variance / DiceRaces);
    }
};

/// By boat, in their order. Who misses a gate comes in behind all who miss none.
std::vector<ThrownPlace> thrownPlaces(const std::vector<ExpectedPlace>& boats, std::mt19937& dice) {
    std::normal_distribution<double> form;
    std::uniform_real_distribution<double> chance;
    std::vector<ThrownPlace> thrown(boats.size());
    std::vector<std::tuple<bool, double, std::size_t>> finish(boats.size());
    for (int race = 0; race < DiceRaces; ++race) {
        for (std::size_t boat = 0; boat < boats.size(); ++boat)
            finish[boat] = {chance(dice) < boats[boat].fail,
                            boats[boat].mean + boats[boat].sd * form(dice), boat};
        std::ranges::sort(finish);
        for (std::size_t i = 0; i < finish.size(); ++i) {
            const auto place = static_cast<double>(i + 1);
            ThrownPlace& boat = thrown[std::get<std::size_t>(finish[i])];
            boat.sum += place;
            boat.squares += place * place;
        }
    }
    return thrown;
}

/// Whether the dice expect what was computed, as exactly as so many races can tell.
bool agree(const std::vector<ExpectedPlace>& boats, const std::vector<ThrownPlace>& thrown) {
    constexpr double Errors = 5;
    constexpr double OfCells = 0.01; // a result is computed to the middle of its cell
    for (std::size_t boat = 0; boat < boats.size(); ++boat)
        if (std::abs(thrown[boat].mean() - boats[boat].chances.expected) >
            Errors * thrown[boat].standardError() + OfCells)
            return false;
    return true;
}

void throwDice(benchmark::State& state) {
    const ComparedSeason made{int(LargestField)};
    const Season season = seasonOf(made.data());
    std::mt19937 dice(6);
    for ([[maybe_unused]] const auto iteration : state)
        if (!agree(season.places.boats, thrownPlaces(season.places.boats, dice)))
            state.SkipWithError("the dice expect other places");
}

} // namespace

void addComparedSeason() {
    benchmark::RegisterBenchmark("season/compared", compareSeason);
    benchmark::RegisterBenchmark("season/places", expectPlaces);
    benchmark::RegisterBenchmark("season/places_by_dice", throwDice);
}

} // namespace kavela::bench
