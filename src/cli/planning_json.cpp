#include "cli/planning_json.h"

#include "common/json_encode.h"
#include "planning/calendar_day.h"
#include "planning/week_totals.h"
#include "splitdata/run_timing.h"

#include <fmt/format.h>

#include <cmath>

namespace kavela::cli {

namespace {

struct TotalJson {
    std::string category;
    std::int64_t sessions = 0;
    std::optional<double> quantity; ///< null when huge values add up to no number
    std::int64_t plannedSessions = 0;
    double plannedQuantity = 0;
};
BOOST_DESCRIBE_STRUCT(TotalJson, (),
                      (category, sessions, quantity, plannedSessions, plannedQuantity))

struct SessionJson {
    std::optional<std::string> date;
    std::optional<std::string> time;
    std::string place;
    std::string title;
    std::string description;
    std::vector<double> values;
};
BOOST_DESCRIBE_STRUCT(SessionJson, (), (date, time, place, title, description, values))

struct WeekJson {
    std::int64_t number = 0;
    std::string monday;
    bool startsOnMonday = false;
    double load = 0;
    std::string mesocycle;
    std::string macrocycle;
    std::string event;
    std::string place;
    std::vector<std::string> goals;
    std::vector<SessionJson> sessions;
    std::vector<TotalJson> totals;
};
BOOST_DESCRIBE_STRUCT(WeekJson, (),
                      (number, monday, startsOnMonday, load, mesocycle, macrocycle, event, place,
                       goals, sessions, totals))

struct SeasonJson {
    std::int64_t year = 0;
    std::vector<WeekJson> weeks;
    std::map<std::string, std::int64_t> counts;
};
BOOST_DESCRIBE_STRUCT(SeasonJson, (), (year, weeks, counts))

struct PlannedAthleteJson {
    std::string name;
    std::vector<std::string> categories;
    std::vector<SeasonJson> seasons;
};
BOOST_DESCRIBE_STRUCT(PlannedAthleteJson, (), (name, categories, seasons))

struct FavouriteJson {
    std::string title;
    std::string target;
    std::int64_t sets = 0;
    std::int64_t repetitions = 0;
    double workTime = 0;
    double workRest = 0;
    double setRest = 0;
};
BOOST_DESCRIBE_STRUCT(FavouriteJson, (),
                      (title, target, sets, repetitions, workTime, workRest, setRest))

struct PlanningJson {
    std::string record;
    std::string label;
    bool current = false;
    std::string coach;
    std::vector<PlannedAthleteJson> athletes;
    std::vector<FavouriteJson> favourites;
};
BOOST_DESCRIBE_STRUCT(PlanningJson, (), (record, label, current, coach, athletes, favourites))

SessionJson sessionJson(const sessioninmicro_v5& session) {
    SessionJson json;
    if (const auto day = dayOf(session))
        json.date = dayText(midnightOf(*day));
    if (const auto time = timeOf(session))
        json.time = fmt::format("{:02}:{:02}", time->count() / 60, time->count() % 60);
    json.place = session.trainingplace;
    json.title = entryOrZero(session.titleanddes, 0);
    json.description = entryOrZero(session.titleanddes, 1);
    json.values = session.data;
    return json;
}

WeekJson weekJson(const microsplanning_v5& week) {
    WeekJson json;
    json.number = week.number;
    json.monday = startText(week);
    json.startsOnMonday = mondayOf(week).has_value();
    json.load = week.percentaje;
    json.mesocycle = week.mesocycle;
    json.macrocycle = week.macrocycle;
    json.event = week.event;
    json.place = week.place;
    json.goals = week.goals;
    for (const sessioninmicro_v5& session : week.sessions)
        json.sessions.push_back(sessionJson(session));
    for (const CategoryTotal& total : weekTotals(week))
        json.totals.push_back(
            {total.category, total.sessions,
             std::isfinite(total.quantity) ? std::optional(total.quantity) : std::nullopt,
             total.plannedSessions, total.plannedQuantity});
    return json;
}

SeasonJson seasonJson(const yearsplannings_v6& season) {
    const auto size = [](const auto& list) { return static_cast<std::int64_t>(list.size()); };
    SeasonJson json;
    json.year = season.year;
    for (const microsplanning_v5& week : season.micros)
        json.weeks.push_back(weekJson(week));
    json.counts = {{"bodyMeasurements", size(season.healthdata)},
                   {"restingHeartRates", size(season.heartdata.resting)},
                   {"variabilityMeasurements", size(season.heartdata.variability)},
                   {"gymSessions", size(season.gymdata)},
                   {"raceRuns", size(season.statisticsdata.racedata.date)},
                   {"runs", size(season.statisticsdata.pendata.date)},
                   {"rankingReleases", size(season.icfdata.release)},
                   {"goalGroups", size(season.seasongoalgroups)}};
    return json;
}

} // namespace

std::string planningJson(const RecognisedPlanning& planning) {
    PlanningJson json;
    json.record = planning.version->record;
    json.label = planning.version->label;
    json.current = planning.isCurrent();
    json.coach = planning.document.coach;
    for (const athletesplanning_v6& athlete : planning.document.athletes) {
        PlannedAthleteJson& entry = json.athletes.emplace_back();
        entry.name = athlete.name;
        entry.categories = athlete.categories;
        for (const yearsplannings_v6& season : athlete.year)
            entry.seasons.push_back(seasonJson(season));
    }
    for (const favInvervalSessions_v2& favourite : planning.document.favintses)
        json.favourites.push_back({favourite.title, favourite.target, favourite.sets,
                                   favourite.reps, favourite.worktime, favourite.workrest,
                                   favourite.setrest});
    return encode(json) + '\n';
}

} // namespace kavela::cli
