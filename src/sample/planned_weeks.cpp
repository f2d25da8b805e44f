#include "sample/planned_weeks.h"

#include "planning/calendar_day.h"
#include "planning/week_totals.h"
#include "planning/weeks.h"
#include "sample/courses.h"

#include <array>
#include <cmath>

namespace kavela::sample {

namespace {

using namespace std::chrono;

struct Mesocycle {
    const char* name;
    const char* macrocycle;
    std::size_t weeks;
    double load;                   ///< percent, of its hardest week
    std::array<double, 8> minutes; ///< by training category, of a full session
};

constexpr std::array Mesocycles{
    Mesocycle{"Adaptation", "Preparation", 6, 65, {60, 10, 0, 0, 50, 0, 0, 0}},
    Mesocycle{"Strength", "Preparation", 8, 85, {55, 15, 5, 0, 0, 45, 0, 10}},
    Mesocycle{"Build", "Preparation", 6, 95, {40, 25, 12, 4, 0, 20, 15, 10}},
    Mesocycle{"Race pace", "Competition", 8, 90, {30, 20, 15, 8, 0, 0, 25, 10}},
    Mesocycle{"Competition", "Competition", 8, 75, {30, 12, 12, 8, 0, 0, 20, 0}},
    Mesocycle{"Autumn races", "Competition", 8, 80, {35, 15, 10, 6, 0, 10, 15, 5}},
    Mesocycle{"Recovery", "Transition", 8, 40, {45, 0, 0, 0, 15, 0, 0, 0}},
};

struct Event {
    const char* name;
    const char* place;
    unsigned month;
    unsigned day;
};

constexpr std::array Events{
    Event{"Spring opener", "Old Mill", 4, 11},  Event{"Riverside Cup", "Riverside", 5, 16},
    Event{"Highland Open", "Highland", 6, 13},  Event{"Harbour Night", "Harbour", 7, 4},
    Event{"Autumn Trophy", "Riverside", 9, 19},
};

/// Hours that a clock in Prague is ahead of UTC.
double zoneHours(sys_days day) {
    const year year = year_month_day(day).year();
    const bool isSummer = day >= sys_days(year / March / Sunday[last]) &&
                          day < sys_days(year / October / Sunday[last]);
    return isSummer ? 2 : 1;
}

struct Slot {
    int dayOfWeek; ///< from Monday, 0
    int hour;
    bool isGym;
    const char* title;
    const char* description;
};

constexpr std::array Slots{
    Slot{1, 9, false, "Gates", "Technique on the upstream gates, then short courses"},
    Slot{2, 16, true, "Gym", "Circuit after a warm-up of fifteen minutes"},
    Slot{5, 10, false, "Full runs", "Three runs on time with full rest"},
};

sessioninmicro_v5 sessionAt(sys_days monday, const Slot& slot, const Mesocycle& cycle, double load,
                            Dice& dice) {
    const sys_days day = monday + days(slot.dayOfWeek);
    const year_month_day date(day);
    sessioninmicro_v5 session;
    session.dateinInts = {static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                          static_cast<unsigned>(date.day())};
    session.trainingtimeInt = {slot.hour, 30};
    session.trainingtimezones = "Europe/Prague";
    session.trainingtime = {midnightOf(day).seconds + (slot.hour + 0.5 - zoneHours(day)) * 3600};
    session.trainingplace = slot.isGym ? "Boathouse gym" : homeWater().place;
    session.titleanddes = {slot.title, slot.description};
    constexpr std::size_t Water = 4;
    for (std::size_t i = 0; i < cycle.minutes.size(); ++i) {
        const bool belongs = slot.isGym == (i >= Water);
        const double minutes = cycle.minutes[i] * load / 100 * dice.between(0.85, 1.1);
        session.data.push_back(belongs ? std::round(minutes) : 0);
    }
    return session;
}

const Mesocycle& cycleOf(std::size_t week) {
    for (const Mesocycle& cycle : Mesocycles) {
        if (week < cycle.weeks)
            return cycle;
        week -= cycle.weeks;
    }
    return Mesocycles.back();
}

/// Three weeks harder and harder, then one to recover.
double loadOf(const Mesocycle& cycle, std::size_t week) {
    constexpr std::array Steps{0.8, 0.9, 1.0, 0.65};
    return std::round(cycle.load * Steps[week % Steps.size()]);
}

void planTests(microsplanning_v5& week, std::size_t index) {
    const auto on = [&](int dayOfWeek, double hour) {
        return ReferenceDate{week.monday.seconds + dayOfWeek * 86400 + hour * 3600};
    };
    if (index % 8 == 3) {
        week.watertest = index % 16 == 3 ? "Lap test" : "Sprint test";
        week.testdata.water = {on(1, 9), on(1, 15)};
    }
    if (index % 16 == 7) {
        week.watertest = "Eight test";
        week.testdata.water = {on(3, 9)};
    }
    if (index % 13 == 2) {
        week.endurancetest = "2000 m flat water";
        week.testdata.endurance = {on(4, 8)};
    }
    if (index % 26 == 1) {
        week.bloodtest = "Full blood count";
        week.testdata.blood = {on(0, 6.5)};
    }
}

void planHealth(microsplanning_v5& week, Dice& dice) {
    if (!dice.chance(0.05))
        return;
    constexpr std::array Parts{"left shoulder", "right wrist", "lower back"};
    week.health = 1;
    week.injurypart = Parts[dice.below(Parts.size())];
    week.healthdes = "Sore after the gym; water sessions easy";
}

/// What was planned is a round number, or a little more or less than what was done.
void planTotals(microsplanning_v5& week) {
    planAsInSessions(week);
    for (double& quantity : week.totalq)
        quantity = std::round(quantity / 10) * 10;
}

void planEvents(std::vector<microsplanning_v5>& weeks, year year) {
    for (const Event& event : Events) {
        const auto at = weekOf(weeks, sys_days(year / month(event.month) / day(event.day)));
        if (!at)
            continue;
        weeks[*at].event = event.name;
        weeks[*at].place = event.place;
        weeks[*at].goals = {"Arrive rested", "No missed gates"};
    }
}

} // namespace

std::vector<microsplanning_v5> plannedWeeks(year year, std::size_t detailedFrom, Dice& dice) {
    std::vector<microsplanning_v5> weeks = newSeason(firstMondayOf(year));
    for (std::size_t i = 0; i < weeks.size(); ++i) {
        microsplanning_v5& week = weeks[i];
        const Mesocycle& cycle = cycleOf(i);
        week.mesocycle = cycle.name;
        week.macrocycle = cycle.macrocycle;
        week.percentaje = loadOf(cycle, i);
        week.place = homeWater().place;
        planTests(week, i);
        planHealth(week, dice);
        for (const Slot& slot : Slots)
            week.sessions.push_back(sessionAt(*mondayOf(week), slot, cycle, week.percentaje, dice));
        planTotals(week);
        if (i + 1 < detailedFrom)
            week.sessions.clear();
    }
    planEvents(weeks, year);
    return weeks;
}

} // namespace kavela::sample
