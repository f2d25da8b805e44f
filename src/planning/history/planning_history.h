#pragma once

#include "planning/planning_records.h"

/// The planning file through its versions, oldest records first, as what they are made of. Records
/// of a version that are not declared here were those of the nearest version that is.
namespace kavela::history {

struct testdataplanning_v1 {
    ReferenceDate blood;
    ReferenceDate endurance;
    ReferenceDate water;
};
BOOST_DESCRIBE_STRUCT(testdataplanning_v1, (), (blood, endurance, water))

/// A date of 0 stood for a test that was not done.
void convertRenamed(testdataplanning_v1& from, testdataplanning_v5& to);

/// The week before sessions were records: entry i of each of seven arrays made up session i.
struct microsplanning_v1 {
    std::int64_t number = 0;
    ReferenceDate monday;
    double percentaje = 0;
    std::string mesocycle;
    std::string macrocycle;
    std::string event;
    std::string place;
    std::string watertest;
    std::string endurancetest;
    std::string bloodtest;
    std::int64_t health = 0;
    std::string injurypart;
    std::string healthdes;
    std::vector<std::vector<std::int64_t>> dateinInts;
    std::vector<std::vector<std::int64_t>> trainingtimeInt;
    std::vector<std::string> trainingtimezones;
    std::vector<ReferenceDate> trainingtime;
    std::vector<std::string> trainingplace;
    std::vector<std::vector<std::string>> titleanddes;
    std::vector<std::vector<double>> data;
    std::vector<std::int64_t> total;
    std::vector<double> totalq;
    std::vector<std::string> goals;
    testdataplanning_v1 testdata;
};
BOOST_DESCRIBE_STRUCT(microsplanning_v1, (),
                      (number, monday, percentaje, mesocycle, macrocycle, event, place, watertest,
                       endurancetest, bloodtest, health, injurypart, healthdes, dateinInts,
                       trainingtimeInt, trainingtimezones, trainingtime, trainingplace, titleanddes,
                       data, total, totalq, goals, testdata))

struct variabilitydataplanning_v1 {
    ReferenceDate date;
    double hrvmax = 0;
    double hrvmin = 0;
};
BOOST_DESCRIBE_STRUCT(variabilitydataplanning_v1, (), (date, hrvmax, hrvmin))

struct heartdataplanning_v1 {
    std::vector<restingdataplanning_v1> resting;
    std::vector<variabilitydataplanning_v1> variability;
};
BOOST_DESCRIBE_STRUCT(heartdataplanning_v1, (), (resting, variability))

using statisticsplanning_v1 = statisticsplanning_v3;

/// What every season record has had.
template <class Week, class Statistics>
struct SeasonOf {
    std::int64_t year = 0;
    std::vector<Week> micros;
    std::vector<healthdataplanning_v1> healthdata;
    heartdataplanning_v1 heartdata;
    Statistics statisticsdata;
    icfdataplanning_v1 icfdata;
    std::vector<gymdataplanning_v1> gymdata;
    BOOST_DESCRIBE_CLASS(SeasonOf, (),
                         (year, micros, healthdata, heartdata, statisticsdata, icfdata, gymdata),
                         (), ())
};

using yearsplannings_v1 = SeasonOf<microsplanning_v1, statisticsplanning_v1>;

template <class Week>
struct SeasonWithGoals : SeasonOf<Week, statisticsplanning_v3> {
    std::vector<std::string> seasongoalgroups;
    std::vector<std::vector<std::string>> seasongoals;
    std::vector<std::vector<std::string>> seasonsubgoals;
    std::vector<std::vector<std::string>> seasonsubgoalsstatus;
    using Base = SeasonOf<Week, statisticsplanning_v3>;
    BOOST_DESCRIBE_CLASS(SeasonWithGoals, (Base),
                         (seasongoalgroups, seasongoals, seasonsubgoals, seasonsubgoalsstatus), (),
                         ())
};

using yearsplannings_v4 = SeasonWithGoals<microsplanning_v1>;
using yearsplannings_v3 = yearsplannings_v4;
using yearsplannings_v5 = SeasonWithGoals<microsplanning_v5>;

template <class Season>
struct AthleteOf {
    std::string name;
    std::string email;
    std::string phone;
    Blob photo;
    std::vector<std::string> categories;
    std::vector<Season> year;
    BOOST_DESCRIBE_CLASS(AthleteOf, (), (name, email, phone, photo, categories, year), (), ())
};

using athletesplanning_v1 = AthleteOf<yearsplannings_v1>;
using athletesplanning_v3 = AthleteOf<yearsplannings_v3>;
using athletesplanning_v4 = AthleteOf<yearsplannings_v4>;
using athletesplanning_v5 = AthleteOf<yearsplannings_v5>;

struct planningdatac_v1 {
    std::string coach;
    std::vector<athletesplanning_v1> athletes;
};
BOOST_DESCRIBE_STRUCT(planningdatac_v1, (), (coach, athletes))

template <class Athlete>
struct PlanningOf {
    std::string coach;
    std::vector<Athlete> athletes;
    std::vector<favInvervalSessions_v2> favintses;
    BOOST_DESCRIBE_CLASS(PlanningOf, (), (coach, athletes, favintses), (), ())
};

using planningdatac_v2 = PlanningOf<athletesplanning_v1>;
using planningdatac_v3 = PlanningOf<athletesplanning_v3>;
using planningdatac_v4 = PlanningOf<athletesplanning_v4>;
using planningdatac_v5 = PlanningOf<athletesplanning_v5>;

/// The seven arrays became session records: as many as the longest array has entries. A session's
/// place within its day follows from its order in the arrays.
void convertRenamed(microsplanning_v1& from, microsplanning_v5& to);

} // namespace kavela::history
