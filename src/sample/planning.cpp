#include "sample/planning.h"

#include "common/json_encode.h"
#include "common/number_text.h"
#include "common/record_convert.h"
#include "planning/calendar_day.h"
#include "planning/gym_maximum.h"
#include "planning/history/planning_history.h"
#include "planning/season_statistics.h"
#include "sample/athletes.h"
#include "sample/dice.h"
#include "sample/planned_weeks.h"

#include <algorithm>
#include <array>
#include <cmath>

// The changes of shape, backwards: the counterparts of what stands beside the history's records.
namespace kavela {

static void convertValue(std::vector<ReferenceDate>&& from, ReferenceDate& to) {
    to = from.empty() ? ReferenceDate{} : from.front();
}

static void convertRenamed(microsplanning_v5& from, history::microsplanning_v1& to) {
    for (sessioninmicro_v5& session : from.sessions) {
        to.dateinInts.push_back(std::move(session.dateinInts));
        to.trainingtimeInt.push_back(std::move(session.trainingtimeInt));
        to.trainingtimezones.push_back(std::move(session.trainingtimezones));
        to.trainingtime.push_back(session.trainingtime);
        to.trainingplace.push_back(std::move(session.trainingplace));
        to.titleanddes.push_back(std::move(session.titleanddes));
        to.data.push_back(std::move(session.data));
    }
}

static void convertRenamed(variabilitydataplanning_v2& from,
                           history::variabilitydataplanning_v1& to) {
    to.hrvmax = from.AVNN + 2 * from.SDNN;
    to.hrvmin = from.AVNN - 2 * from.SDNN;
}

} // namespace kavela

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year;

constexpr double Morning = 5.5 * 3600; // UTC
constexpr std::int64_t LastSeason = 2026;
constexpr sys_days LastMeasured = 2026y / 6 / 8;

double tenths(double value) {
    return std::round(value * 10) / 10;
}

void measureBody(yearsplannings_v6& season, double weight, Dice& dice) {
    for (std::size_t i = 0; i < season.micros.size(); i += 4)
        season.healthdata.push_back({{season.micros[i].monday.seconds + Morning},
                                     tenths(weight + dice.bell(0.6)),
                                     tenths(9 + dice.bell(0.8))});
}

variabilitydataplanning_v2 variability(ReferenceDate date, double rhr, Dice& dice) {
    variabilitydataplanning_v2 measured;
    measured.date = date;
    measured.AVNN = std::round(57000 / rhr);
    measured.rMSSD = tenths(std::max(20.0, 78 + dice.bell(9)));
    measured.SDNN = tenths(measured.rMSSD * dice.between(1.05, 1.3));
    measured.pNN50 = tenths(std::clamp(measured.rMSSD * 0.55 + dice.bell(3), 1.0, 90.0));
    measured.LF = std::round(dice.between(700, 1900));
    measured.HF = std::round(dice.between(900, 2600));
    return measured;
}

/// Every morning of nine weeks; the last of them tired.
void measureHeart(yearsplannings_v6& season, sys_days last, double rate, Dice& dice) {
    constexpr int Days = 63;
    for (int i = 0; i < Days; ++i) {
        if (dice.chance(0.1))
            continue; // forgotten
        const ReferenceDate date{midnightOf(last - days(Days - 1 - i)).seconds + Morning};
        const double rhr = std::round(rate + dice.bell(1.4) + (i >= Days - 7 ? 5 : 0));
        season.heartdata.resting.push_back({date, rhr});
        season.heartdata.variability.push_back(variability(date, rhr, dice));
    }
}

void liftWeights(yearsplannings_v6& season, double strength, Dice& dice) {
    constexpr std::array Exercises{"Bench press", "Bench pull", "Pull-up with weight"};
    for (std::size_t i = 2; i < season.micros.size(); i += 6) {
        gymdataplanning_v1 session;
        session.date = {season.micros[i].monday.seconds + 2 * 86400 + 14.5 * 3600};
        for (const char* exercise : Exercises) {
            const std::int64_t repetitions = 3 + dice.code(8);
            const double weight =
                2.5 * std::round(strength * (1.02 - 0.025 * static_cast<double>(repetitions)) *
                                 dice.between(0.95, 1.05) / 2.5);
            session.exercise.emplace_back(exercise);
            session.sets.push_back(3 + dice.code(3));
            session.rep.push_back(repetitions);
            session.weight.push_back(weight);
            session.maxweight.push_back(gymMaximum(repetitions, weight).value_or(0));
        }
        season.gymdata.push_back(std::move(session));
    }
}

void rank(yearsplannings_v6& season, Dice& dice) {
    for (std::int64_t release = 1; release <= 4; ++release) {
        season.icfdata.release.push_back(release);
        season.icfdata.points.push_back(tenths(dice.between(40, 140)));
        season.icfdata.pos.push_back(8 + dice.code(60));
    }
}

void setGoals(yearsplannings_v6& season) {
    season.seasongoalgroups = {"Results", "Technique", "Physical"};
    season.seasongoals = {{"Final at the Riverside Cup"}, {"Clean upstream gates"}, {"Strength"}};
    season.seasonsubgoals = {{"Semifinal in two races", "Within 105 % of the best"},
                             {"Less than one touch a run", "No missed gate after May"},
                             {"Bench pull above body weight"}};
    season.seasonsubgoalsstatus = {{"Done", "Open"}, {"Open", "Open"}, {"Done"}};
}

struct Person {
    std::string_view category;
    std::int64_t bib;
    double weight;
    double rate; ///< resting heart rate
    double strength;
};

constexpr std::array Group{Person{"K1M", 2, 74.5, 46, 105}, Person{"C1M", 41, 71, 49, 98},
                           Person{"K1W", 61, 61.5, 50, 66}, Person{"C1W", 81, 58, 47, 62}};

yearsplannings_v6 seasonOf(const Person& person, std::int64_t calendarYear, Dice& dice) {
    const year seasonYear(static_cast<int>(calendarYear));
    const bool isLast = calendarYear == LastSeason;
    yearsplannings_v6 season;
    season.year = calendarYear;
    season.micros = plannedWeeks(seasonYear, isLast ? 1 : 47, dice);
    measureBody(season, person.weight, dice);
    measureHeart(season, isLast ? LastMeasured : sys_days(seasonYear / 11 / 30), person.rate, dice);
    liftWeights(season, person.strength, dice);
    rank(season, dice);
    setGoals(season);
    return season;
}

athletesplanning_v6 athleteOf(const Person& person, std::int64_t firstSeason) {
    athletesplanning_v6 athlete;
    for (const Boat& boat : sampleBoats(person.category))
        if (boat.bib == person.bib)
            athlete.name = boat.names.front();
    athlete.email = "athlete" + std::to_string(person.bib) + "@example.org";
    athlete.phone = "+000 555 01" + std::to_string(10 + person.bib);
    athlete.categories = {std::string(person.category)};
    Dice dice("planning of " + athlete.name + std::to_string(firstSeason));
    for (std::int64_t season = firstSeason; season <= std::max(firstSeason, LastSeason); ++season)
        athlete.year.push_back(seasonOf(person, season, dice));
    return athlete;
}

std::vector<favInvervalSessions_v2> favourites() {
    return {{"Ten by one", "Aerobic capacity", "Race pace less 5 %", "Float", 1, 0, 10, 60, 60,
             "Ten one-minute courses with easy paddling back", 10, 85},
            {"Fifteens", "Alactic capacity", "Flat out", "Stand", 3, 240, 6, 15, 45,
             "Starts into two upstream gates", 4.5, 100},
            {"Pyramid", "Aerobic glucolytic", "Even", "Float", 2, 300, 5, 90, 90,
             "One, two, three, two, one minutes", 15, 80},
            {"Long easy", "Aerobic lipolytic", "Talking", "None", 1, 0, 1, 3600, 0,
             "An hour down the river and back", 60, 55}};
}

/// A former season of one athlete, of four weeks.
planningdatac_v6 formerPlanning(std::int64_t season) {
    planningdatac_v6 planning;
    planning.coach = "Ida Strömland";
    athletesplanning_v6 athlete = athleteOf(Group[2], season);
    athlete.year.resize(1);
    Dice dice("former planning " + std::to_string(season));
    athlete.year[0].micros = plannedWeeks(year(static_cast<int>(season)), 1, dice);
    athlete.year[0].micros.erase(athlete.year[0].micros.begin() + 4, athlete.year[0].micros.end());
    planning.athletes = {std::move(athlete)};
    planning.favintses = {favourites().front()};
    return planning;
}

template <class Old>
std::string textOf(std::int64_t season) {
    return encode(converted<Old>(formerPlanning(season)));
}

} // namespace

planningdatac_v6 groupPlanning(std::span<const splittakerdata031> files) {
    planningdatac_v6 planning;
    planning.coach = "Ida Strömland";
    for (const Person& person : Group) {
        planning.athletes.push_back(athleteOf(person, LastSeason - 1));
        athletesplanning_v6& athlete = planning.athletes.back();
        athlete.year.back().statisticsdata = seasonStatistics(athlete.name, files);
    }
    planning.favintses = favourites();
    return planning;
}

planninginfo_v1 groupAccess() {
    return {{"Ida Strömland", "Assistant coach"},
            {"choose-your-own-1", "choose-your-own-2"},
            {"write", "read"},
            midnightOf(LastMeasured)};
}

std::string morningVariability() {
    Dice dice("morning variability");
    std::string list = "Date;AVNN;SDNN;rMSSD;pNN50;LF;HF;Note\n";
    for (int i = 1; i <= 10; ++i) {
        const ReferenceDate date{midnightOf(LastMeasured + days(i)).seconds};
        const variabilitydataplanning_v2 measured = variability(date, 50, dice);
        list += dayText(date) + " 07:30;";
        if (i == 6) {
            list += "error;;;;;;strap was loose\n";
            continue;
        }
        for (const double value : {measured.AVNN, measured.SDNN, measured.rMSSD, measured.pNN50,
                                   measured.LF, measured.HF})
            list += shortestText(value) + ';';
        list += '\n';
    }
    return list;
}

std::vector<OldPlanning> oldPlannings() {
    return {{"5", textOf<history::planningdatac_v5>(2022)},
            {"4", textOf<history::planningdatac_v4>(2020)},
            {"2", textOf<history::planningdatac_v2>(2018)},
            {"1", textOf<history::planningdatac_v1>(2016)}};
}

} // namespace kavela::sample
