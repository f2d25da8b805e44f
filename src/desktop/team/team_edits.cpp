#include "desktop/team/team_edits.h"

#include "common/folded_text.h"
#include "common/number_text.h"
#include "results/phase_averages.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

/// Places of the four phases; others stand behind them.
std::ptrdiff_t orderOf(std::string_view phase) {
    return std::ranges::find(team::Phases, phase) - std::begin(team::Phases);
}

} // namespace

mtCatsStruct& categoryIn(myTeamStruct& athlete, std::string_view label) {
    const auto found = std::ranges::find(athlete.cats, label, &mtCatsStruct::cat);
    return found != athlete.cats.end()
               ? *found
               : athlete.cats.emplace_back(mtCatsStruct{std::string(label), {}, {}});
}

mtSeasonStruct& seasonIn(mtCatsStruct& category, std::int64_t year) {
    auto& seasons = category.seasons;
    const auto found = std::ranges::find(seasons, year, &mtSeasonStruct::year);
    if (found != seasons.end())
        return *found;
    const auto older = std::ranges::find_if(
        seasons, [year](const mtSeasonStruct& season) { return season.year < year; });
    mtSeasonStruct season;
    season.year = year;
    return *seasons.insert(older, std::move(season));
}

std::optional<std::size_t> raceAt(const mtSeasonStruct& season, std::string_view event,
                                  std::string_view location) {
    const auto& races = season.races;
    const auto found = std::ranges::find_if(races, [&](const mtRaceStruct& race) {
        return race.event == event && folded(race.location) == folded(location);
    });
    if (found == races.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - races.begin());
}

mtPhaseStruct& phaseIn(mtRaceStruct& race, std::string_view phase) {
    const auto found = std::ranges::find(race.phases, phase, &mtPhaseStruct::phase);
    if (found != race.phases.end())
        return *found;
    const auto next = std::ranges::find_if(race.phases, [&](const mtPhaseStruct& other) {
        return orderOf(other.phase) > orderOf(phase);
    });
    mtPhaseStruct run;
    run.phase = phase;
    return *race.phases.insert(next, std::move(run));
}

void dropEmptyPhases(mtRaceStruct& race) {
    std::erase_if(race.phases, [](const mtPhaseStruct& run) {
        return run.time == 0 && run.pen == 0 && run.pos == 0 && run.splits.empty() &&
               run.pers.empty();
    });
}

std::optional<double> percentBehindOf(const mtPhaseStruct& run) {
    mtRaceStruct race;
    race.phases.push_back(run);
    const auto averages = phaseAverages({&race, 1});
    const std::vector<double>& percentages = averages.front().per;
    if (percentages.size() <= run.pers.size())
        return std::nullopt;
    return percentages.back();
}

std::string runText(const mtPhaseStruct& run) {
    std::string text;
    if (run.pos > 0)
        text = std::to_string(run.pos) + ".";
    if (run.time > 0)
        text += (text.empty() ? "" : " ") + hundredthsText(run.time) +
                (run.pen > 0 ? " (" + std::to_string(run.pen) + ")" : "");
    return text;
}

} // namespace kavela::desktop
