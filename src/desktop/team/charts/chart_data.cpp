#include "desktop/team/charts/chart_data.h"

#include "desktop/team/team_edits.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

/// The earliest day of a race; `before` where none is known.
ReferenceDate dayOf(const mtRaceStruct& race, ReferenceDate before) {
    std::optional<ReferenceDate> first;
    for (const mtPhaseStruct& run : race.phases)
        if (run.date != ReferenceDate() && (!first || run.date < *first))
            first = run.date;
    return first.value_or(before);
}

SeasonRace seasonRace(const mtRaceStruct& race) {
    SeasonRace entry;
    entry.event = race.event;
    entry.location = race.location;
    for (const mtPhaseStruct& run : race.phases)
        entry.runs.push_back({run.phase, percentBehindOf(run), run.pen, run.pos});
    return entry;
}

} // namespace

std::vector<SeasonRace> racesInTime(const mtCatsStruct& category,
                                    std::optional<std::size_t> season) {
    struct Dated {
        SeasonRace race;
        ReferenceDate day;
    };
    std::vector<Dated> dated;
    for (std::size_t s = 0; s < category.seasons.size(); ++s) {
        if (season && *season != s)
            continue;
        ReferenceDate day{-1e12};
        const auto& races = category.seasons[s].races;
        for (std::size_t r = 0; r < races.size(); ++r) {
            day = dayOf(races[r], day);
            Dated entry{seasonRace(races[r]), day};
            entry.race.year = category.seasons[s].year;
            entry.race.season = s;
            entry.race.race = r;
            dated.push_back(std::move(entry));
        }
    }
    std::ranges::stable_sort(
        dated, {}, [](const Dated& entry) { return std::pair(entry.race.year, entry.day); });
    std::vector<SeasonRace> races;
    for (Dated& entry : dated)
        races.push_back(std::move(entry.race));
    return races;
}

fullracess progressionOf(const mtRaceStruct& race) {
    fullracess progression{race.event, race.location, {}};
    for (const char* phase : team::Phases) {
        const auto run = std::ranges::find(race.phases, phase, &mtPhaseStruct::phase);
        if (run != race.phases.end() && run->pos > 0)
            progression.phases.push_back({phase, run->pos});
    }
    if (race.finalPos > 0)
        progression.phases.push_back({ResultPhase, race.finalPos});
    return progression;
}

} // namespace kavela::desktop
