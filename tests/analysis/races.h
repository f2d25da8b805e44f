#pragma once

#include "splitdata/document.h"

#include <initializer_list>

namespace kavela::test {

/// A run of which only the section times are known.
inline athletedata031 runOf(std::vector<double> times) {
    athletedata031 run;
    run.sectioninfo.times = std::move(times);
    return run;
}

/// A race over a course of so many sections.
inline splittakerdata031 raceOf(std::int64_t sections, std::vector<athletedata031> runs) {
    splittakerdata031 race;
    race.info.totalsplits = sections;
    race.athletes = std::move(runs);
    return race;
}

} // namespace kavela::test
