#include "results/athlete_summary.h"

#include "results/team_seasons.h"

namespace kavela {

namespace {

void count(const mtRaceStruct& race, AthleteSummary& summary) {
    if (race.finalPos > 15)
        return;
    ++summary.top15;
    if (race.finalPos > 6)
        return;
    ++summary.top6;
    if (race.finalPos > 3)
        return;
    ++summary.medals;
    if (isChampionship(race))
        ++summary.championshipMedals;
}

} // namespace

AthleteSummary athleteSummary(const myTeamStruct& athlete, std::string_view category) {
    AthleteSummary summary;
    if (const mtCatsStruct* const results = categoryOf(athlete, category))
        for (const mtSeasonStruct& season : results->seasons)
            for (const mtRaceStruct& race : season.races)
                count(race, summary);
    return summary;
}

std::array<std::string, 4> summaryLines(const AthleteSummary& summary) {
    return {"Medals: " + std::to_string(summary.medals),
            "Medals in SP or EP: " + std::to_string(summary.championshipMedals),
            "Top 6s: " + std::to_string(summary.top6), "Top 15s: " + std::to_string(summary.top15)};
}

} // namespace kavela
