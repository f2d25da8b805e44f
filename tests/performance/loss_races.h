#pragma once

#include "facts/fact_store.h"

#include <string>
#include <utility>
#include <vector>

namespace kavela::test {

/// A run of a crew with its section times, in the final of K1M.
inline athletedata031 lossRun(std::vector<std::string> names, std::vector<double> times) {
    athletedata031 run;
    run.names = std::move(names);
    run.cat = "K1M";
    run.phase = "Final";
    run.sectioninfo.times = std::move(times);
    return run;
}

/// A race over a course of so many sections, of which the gates are not told.
inline splittakerdata031 lossRace(std::int64_t sections, std::vector<athletedata031> runs) {
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.totalsplits = sections;
    race.athletes = std::move(runs);
    return race;
}

inline FactStore factsOf(const splittakerdata031& race) {
    FactStore facts;
    facts.add(race, "race.kvx");
    return facts;
}

} // namespace kavela::test
