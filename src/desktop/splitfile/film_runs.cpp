#include "desktop/splitfile/film_runs.h"

#include "desktop/shell/workspace.h"
#include "splittaking/penalties.h"
#include "splittaking/video_names.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>

namespace kavela::desktop {

namespace {

/// What the name of a run's first film tells.
void takeFilmName(athletedata031& run, const std::string& pattern) {
    FilmFacts facts = filmFacts(run.videoname.front(), pattern);
    run.names = std::move(facts.names);
    run.phase = std::move(facts.phase);
    run.cat = std::move(facts.category);
}

} // namespace

splittakerdata031 newRaceIn(const QString& folder, const Workspace& workspace) {
    splittakerdata031 race;
    race.info.date = workspace.clock()();
    race.info.session = "Race";
    race.info.title = QFileInfo(folder).fileName().toStdString();
    race.info.totalsplits = workspace.preferences().integer("predeterminatedsplits");
    return race;
}

std::vector<athletedata031> runsOfFilms(const QStringList& films, const std::string& pattern,
                                        std::int64_t gates) {
    std::vector<athletedata031> runs;
    for (const QString& film : films) {
        athletedata031 run;
        run.videoname = {film.toStdString()};
        takeFilmName(run, pattern);
        (void)fitPenalties(run, gates);
        runs.push_back(std::move(run));
    }
    return runs;
}

TakingState withFilmNames(const TakingState& before, const std::string& pattern) {
    TakingState after = before;
    for (TakenRun& run : after.runs) {
        if (run.record->videoname.empty())
            continue;
        auto read = std::make_shared<athletedata031>(*run.record);
        takeFilmName(*read, pattern);
        run.record = std::move(read);
    }
    return after;
}

QStringList filmsOfNoRun(const TakingState& state, const QStringList& names) {
    QStringList fresh;
    for (const QString& name : names) {
        const bool isKnown = std::ranges::any_of(state.runs, [&](const TakenRun& run) {
            const std::vector<std::string>& films = run.record->videoname;
            return std::ranges::find(films, name.toStdString()) != films.end();
        });
        if (!isKnown)
            fresh.append(name);
    }
    return fresh;
}

} // namespace kavela::desktop
