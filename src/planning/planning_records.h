#pragma once

#include "common/blob.h"
#include "common/record.h"
#include "common/reference_date.h"
#include "splitdata/history/timing_history.h"

#include <cstdint>
#include <string>
#include <vector>

/// The current records of the training planning file. Arrays called parallel may be of different
/// lengths in a file and are kept so; readers must not overrun the shorter one.
namespace kavela {

/// Dates of the tests done in a week.
struct testdataplanning_v5 {
    std::vector<ReferenceDate> blood;
    std::vector<ReferenceDate> endurance;
    std::vector<ReferenceDate> water;
};
BOOST_DESCRIBE_STRUCT(testdataplanning_v5, (), (blood, endurance, water))

/// One training session of a week.
struct sessioninmicro_v5 {
    std::vector<std::int64_t> dateinInts;      ///< year, month, day where the session takes place
    std::vector<std::int64_t> trainingtimeInt; ///< hour, minute there
    std::string trainingtimezones;             ///< "Europe/Paris"
    ReferenceDate trainingtime;                ///< the start as a point in time
    std::string trainingplace;
    std::vector<std::string> titleanddes; ///< title, description
    std::vector<double> data;             ///< by training category, in its unit
    std::int64_t dayPosition = 0;         ///< place within its day, from 0
};
BOOST_DESCRIBE_STRUCT(sessioninmicro_v5, (),
                      (dateinInts, trainingtimeInt, trainingtimezones, trainingtime, trainingplace,
                       titleanddes, data, dayPosition))

/// One microcycle: one training week.
struct microsplanning_v5 {
    std::int64_t number = 0; ///< within the season, from 1
    ReferenceDate monday;    ///< on which the week starts
    double percentaje = 0;   ///< load, percent
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
    std::vector<sessioninmicro_v5> sessions;
    std::vector<std::int64_t> total; ///< by training category: number of sessions planned
    std::vector<double> totalq;      ///< by training category: quantity planned
    std::vector<std::string> goals;
    testdataplanning_v5 testdata;
};
BOOST_DESCRIBE_STRUCT(microsplanning_v5, (),
                      (number, monday, percentaje, mesocycle, macrocycle, event, place, watertest,
                       endurancetest, bloodtest, health, injurypart, healthdes, sessions, total,
                       totalq, goals, testdata))

struct healthdataplanning_v1 {
    ReferenceDate date;
    double weight = 0; ///< kilograms
    double fatper = 0; ///< body fat, percent
};
BOOST_DESCRIBE_STRUCT(healthdataplanning_v1, (), (date, weight, fatper))

struct restingdataplanning_v1 {
    ReferenceDate date;
    double rhr = 0; ///< resting heart rate, beats per minute
};
BOOST_DESCRIBE_STRUCT(restingdataplanning_v1, (), (date, rhr))

/// One measurement of heart-rate variability.
struct variabilitydataplanning_v2 {
    ReferenceDate date;
    double AVNN = 0;  ///< mean of normal-to-normal intervals, ms
    double SDNN = 0;  ///< their standard deviation, ms
    double rMSSD = 0; ///< root mean square of successive differences, ms
    double pNN50 = 0; ///< successive differences above 50 ms, percent
    double LF = 0;    ///< low-frequency power, ms²
    double HF = 0;    ///< high-frequency power, ms²
};
BOOST_DESCRIBE_STRUCT(variabilitydataplanning_v2, (), (date, AVNN, SDNN, rMSSD, pNN50, LF, HF))

struct heartdataplanning_v2 {
    std::vector<restingdataplanning_v1> resting;
    std::vector<variabilitydataplanning_v2> variability;
};
BOOST_DESCRIBE_STRUCT(heartdataplanning_v2, (), (resting, variability))

/// Parallel arrays, one entry per release of the ranking list.
struct icfdataplanning_v1 {
    std::vector<std::int64_t> release;
    std::vector<double> points;
    std::vector<std::int64_t> pos;
};
BOOST_DESCRIBE_STRUCT(icfdataplanning_v1, (), (release, points, pos))

/// One gym session: parallel arrays, one entry per exercise.
struct gymdataplanning_v1 {
    ReferenceDate date;
    std::vector<std::string> exercise;
    std::vector<std::int64_t> sets;
    std::vector<std::int64_t> rep;
    std::vector<double> weight;    ///< kilograms
    std::vector<double> maxweight; ///< kilograms
};
BOOST_DESCRIBE_STRUCT(gymdataplanning_v1, (), (date, exercise, sets, rep, weight, maxweight))

/// Parallel arrays, one entry per race run of the season.
struct racedataplanning_v3 {
    std::vector<ReferenceDate> date;
    std::vector<std::string> event;
    std::vector<std::string> phase;
    std::vector<std::string> location;
    std::vector<std::vector<double>> percentajes;     ///< by section: percent behind the best
    std::vector<std::vector<std::int64_t>> penalties; ///< by gate: seconds
    std::vector<std::vector<history::pendata015>> pendetails;
    std::vector<std::int64_t> gates;
    std::vector<std::int64_t> pos;
    std::vector<double> time; ///< seconds, without penalties
    std::vector<std::int64_t> timePen;
    std::vector<double> bestTime; ///< of the best run of the category
    std::vector<std::int64_t> bestTimePen;
};
BOOST_DESCRIBE_STRUCT(racedataplanning_v3, (),
                      (date, event, phase, location, percentajes, penalties, pendetails, gates, pos,
                       time, timePen, bestTime, bestTimePen))

/// Parallel arrays, one entry per run of the season, races and trainings alike.
struct penaltydataplanning_v1 {
    std::vector<ReferenceDate> date;
    std::vector<std::string> session;
    std::vector<std::string> event;
    std::vector<std::string> phase;
    std::vector<std::string> water;
    std::vector<std::string> location;
    std::vector<std::int64_t> gates;
    std::vector<std::int64_t> touches;
    std::vector<std::int64_t> fifties;
    std::vector<std::vector<history::pendata015>> pendetails;
};
BOOST_DESCRIBE_STRUCT(penaltydataplanning_v1, (),
                      (date, session, event, phase, water, location, gates, touches, fifties,
                       pendetails))

struct statisticsplanning_v3 {
    racedataplanning_v3 racedata;
    penaltydataplanning_v1 pendata;
};
BOOST_DESCRIBE_STRUCT(statisticsplanning_v3, (), (racedata, pendata))

/// One season of an athlete.
struct yearsplannings_v6 {
    std::int64_t year = 0;
    std::vector<microsplanning_v5> micros; ///< the weeks, in order
    std::vector<healthdataplanning_v1> healthdata;
    heartdataplanning_v2 heartdata;
    statisticsplanning_v3 statisticsdata;
    icfdataplanning_v1 icfdata;
    std::vector<gymdataplanning_v1> gymdata;
    std::vector<std::string> seasongoalgroups;
    std::vector<std::vector<std::string>> seasongoals;    ///< by group
    std::vector<std::vector<std::string>> seasonsubgoals; ///< by group
    std::vector<std::vector<std::string>> seasonsubgoalsstatus;
};
BOOST_DESCRIBE_STRUCT(yearsplannings_v6, (),
                      (year, micros, healthdata, heartdata, statisticsdata, icfdata, gymdata,
                       seasongoalgroups, seasongoals, seasonsubgoals, seasonsubgoalsstatus))

struct athletesplanning_v6 {
    std::string name;
    std::string email;
    std::string phone;
    Blob photo; ///< the bytes of a picture file; none when empty
    std::vector<std::string> categories;
    std::vector<yearsplannings_v6> year;
};
BOOST_DESCRIBE_STRUCT(athletesplanning_v6, (), (name, email, phone, photo, categories, year))

/// A favourite interval session of the coach.
struct favInvervalSessions_v2 {
    std::string title;
    std::string target;
    std::string rhythm;
    std::string brake; ///< kind of rest
    std::int64_t sets = 0;
    double setrest = 0; ///< between sets, seconds
    std::int64_t reps = 0;
    double worktime = 0; ///< of a repetition, seconds
    double workrest = 0; ///< between repetitions, seconds
    std::string description;
    double volume = 0;
    double intensity = 0;
};
BOOST_DESCRIBE_STRUCT(favInvervalSessions_v2, (),
                      (title, target, rhythm, brake, sets, setrest, reps, worktime, workrest,
                       description, volume, intensity))

/// The planning document.
struct planningdatac_v6 {
    std::string coach;
    std::vector<athletesplanning_v6> athletes;
    std::vector<favInvervalSessions_v2> favintses;
};
BOOST_DESCRIBE_STRUCT(planningdatac_v6, (), (coach, athletes, favintses))

/// Who may open a shared plan: parallel arrays, one entry per person. The passwords are in the
/// clear, as the format has them; nothing may show or log them.
struct planninginfo_v1 {
    std::vector<std::string> people;
    std::vector<std::string> passwords;
    std::vector<std::string> permissions;
    ReferenceDate savedDate;
};
BOOST_DESCRIBE_STRUCT(planninginfo_v1, (), (people, passwords, permissions, savedDate))

} // namespace kavela
