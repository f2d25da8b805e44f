#include "cli/planning_text.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/number_text.h"
#include "planning/calendar_day.h"
#include "planning/training_categories.h"
#include "planning/week_totals.h"
#include "planning/weeks.h"

#include <fmt/format.h>

namespace kavela::cli {

namespace {

constexpr int NumberWidth = 5;
constexpr int DayWidth = 11;
constexpr int FigureWidth = 9;
constexpr int CycleWidth = 16;

bool isEmpty(const microsplanning_v5& week) {
    return week.sessions.empty() && week.event.empty() && week.mesocycle.empty() &&
           week.totalq.empty() && week.goals.empty();
}

/// What the sessions of some categories add up to, and what was planned: "140/150".
std::string doneText(const std::vector<CategoryTotal>& totals, std::size_t first, std::size_t end) {
    double quantity = 0;
    double planned = 0;
    for (std::size_t i = first; i < end; ++i) {
        quantity += totals[i].quantity;
        planned += totals[i].plannedQuantity;
    }
    return fmt::format("{:.6g}/{:.6g}", quantity, planned);
}

std::string weekLine(const microsplanning_v5& week) {
    const std::vector<CategoryTotal> totals = weekTotals(week);
    std::string line =
        "  " + rightAligned(std::to_string(week.number), NumberWidth) + "  " +
        fitted(startText(week), DayWidth) +
        rightAligned(fmt::format("{:.4g} %", week.percentaje), FigureWidth) +
        rightAligned(std::to_string(week.sessions.size()), FigureWidth) +
        rightAligned(doneText(totals, 0, WaterCategories), FigureWidth + 4) +
        rightAligned(doneText(totals, WaterCategories, totals.size()), FigureWidth + 4) + "  " +
        fitted(printable(week.mesocycle), CycleWidth) + "  " + printable(week.event);
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string weekHeading() {
    return "  " + rightAligned("Week", NumberWidth) + "  " + fitted("Begins", DayWidth) +
           rightAligned("Load", FigureWidth) + rightAligned("Sessions", FigureWidth) +
           rightAligned("Water", FigureWidth + 4) + rightAligned("Gym", FigureWidth + 4) + "  " +
           fitted("Mesocycle", CycleWidth) + "  Event\n";
}

std::string seasonText(const yearsplannings_v6& season) {
    std::int64_t sessions = 0;
    std::string lines;
    for (const microsplanning_v5& week : season.micros) {
        sessions += static_cast<std::int64_t>(week.sessions.size());
        if (!isEmpty(week))
            lines += weekLine(week);
    }
    const auto weeks = static_cast<std::int64_t>(season.micros.size());
    std::string text = "Season " + std::to_string(season.year) + ": " +
                       counted(weeks, "week", "weeks") + ", " +
                       counted(sessions, "session", "sessions") + '\n';
    if (!lines.empty())
        text += weekHeading() + lines;
    for (const std::size_t index : weeksNotOnMonday(season.micros))
        text += "  Week " + std::to_string(season.micros[index].number) + " begins on " +
                startText(season.micros[index]) + ", which is no Monday.\n";
    return text;
}

std::string athleteText(const athletesplanning_v6& athlete) {
    std::string text = '\n' + printable(athlete.name);
    for (const std::string& category : athlete.categories)
        text += (&category == &athlete.categories.front() ? " · " : ", ") + printable(category);
    text += '\n';
    for (const yearsplannings_v6& season : athlete.year)
        text += seasonText(season);
    return text;
}

} // namespace

std::string planningText(const planningdatac_v6& planning) {
    const auto count = [](const auto& list) { return static_cast<std::int64_t>(list.size()); };
    std::string text = "Planning of " + printable(planning.coach) + ": " +
                       counted(count(planning.athletes), "athlete", "athletes") + ", " +
                       counted(count(planning.favintses), "favourite interval session",
                               "favourite interval sessions") +
                       '\n';
    for (const athletesplanning_v6& athlete : planning.athletes)
        text += athleteText(athlete);
    return text + "\nWater and gym: what the sessions add up to, and what was planned.\n";
}

} // namespace kavela::cli
