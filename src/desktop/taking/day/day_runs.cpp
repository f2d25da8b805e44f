#include "desktop/taking/day/day_runs.h"

#include "splitdata/run_timing.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

void renameFilm(TakingState& state, const std::string& before, const std::string& after) {
    for (TakenRun& run : state.runs) {
        if (std::ranges::find(run.record->videoname, before) == run.record->videoname.end())
            continue;
        auto renamed = std::make_shared<athletedata031>(*run.record);
        std::ranges::replace(renamed->videoname, before, after);
        run.record = std::move(renamed);
    }
}

/// Whether a text of a run may be replaced: nobody typed it.
bool isFromList(const std::string& text, const std::string& before) {
    return text.empty() || text == before;
}

void nameRun(TakenRun& run, const DayStart& before, const DayStart& after) {
    auto named = std::make_shared<athletedata031>(*run.record);
    const std::string crew = crewText(named->names);
    if (!isFromList(crew, crewText(crewIn(before.name))))
        return;
    named->names = crewIn(after.name);
    if (isFromList(named->cat, before.cat))
        named->cat = after.cat;
    if (isFromList(named->phase, before.phase))
        named->phase = after.phase;
    run.record = std::move(named);
}

} // namespace

std::vector<std::size_t> runsOfFilm(const TakingState& state, const std::string& film) {
    std::vector<std::size_t> runs;
    for (std::size_t run = 0; run < state.runs.size(); ++run) {
        const std::vector<std::string>& films = state.runs[run].record->videoname;
        if (!films.empty() && films.front() == film)
            runs.push_back(run);
    }
    return runs;
}

athletedata031 runOf(const DayStart& start, const std::string& film) {
    athletedata031 run;
    run.names = crewIn(start.name);
    run.cat = start.cat;
    run.phase = start.phase;
    run.videoname = {film};
    return run;
}

void setDay(TakingState& state, RaceDay day) {
    const RaceDay& before = *state.day;
    for (const DayFilm& film : day.films) {
        const std::string name = presentName(day, film.from);
        if (const std::string was = presentName(before, film.from); was != name)
            renameFilm(state, was, name);
        const DayFilm* const film0 = findFilmFrom(before, film.from);
        const std::vector<std::size_t> runs = runsOfFilm(state, name);
        const std::vector<std::int64_t> boats = film0 ? film0->starts : std::vector<std::int64_t>();
        for (std::size_t boat = 0; boat < runs.size(); ++boat) {
            const DayStart* const was =
                boat < boats.size() ? findStart(before, boats[boat]) : nullptr;
            const DayStart* const is =
                boat < film.starts.size() ? findStart(day, film.starts[boat]) : nullptr;
            if (was || is)
                nameRun(state.runs[runs[boat]], was ? *was : DayStart(), is ? *is : DayStart());
        }
    }
    state.day = std::make_shared<RaceDay>(std::move(day));
}

} // namespace kavela::desktop
