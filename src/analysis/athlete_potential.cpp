#include "analysis/athlete_potential.h"

#include "analysis/ideal_run.h"
#include "analysis/percent_behind.h"

#include <algorithm>
#include <map>

namespace kavela {

namespace {

/// Who sat in which boat, whichever of the two is named first.
using Crew = std::pair<std::vector<std::string>, std::string>;

Crew crewOf(const analyzerdata& run) {
    Crew crew{run.names, run.category};
    std::ranges::sort(crew.first);
    return crew;
}

std::vector<AthletePotential> crews(const RaceSet& set) {
    std::vector<AthletePotential> crews;
    std::map<Crew, std::size_t> places;
    for (std::size_t i = 0; i < set.alldata.size(); ++i) {
        const analyzerdata& run = set.alldata[i];
        std::size_t place = crews.size();
        if (!run.name.empty())
            place = places.try_emplace(crewOf(run), place).first->second;
        if (place == crews.size())
            crews.emplace_back().name = run.name;
        crews[place].runs.push_back(i);
    }
    return crews;
}

void fillFigures(AthletePotential& athlete, const RaceSet& set) {
    const IdealRun ideal = idealRun(set, athlete.runs);
    athlete.potential = ideal.total;
    athlete.bestRun = ideal.fastest;
    if (!ideal.fastest)
        return;
    athlete.bestTotal = set.alldata[*ideal.fastest].sectioninfo.totaltime;
    athlete.difference = *athlete.bestTotal - *athlete.potential;
    athlete.percent = percentBehind(*athlete.bestTotal, *athlete.potential);
}

} // namespace

std::vector<AthletePotential> athletePotentials(const RaceSet& set) {
    std::vector<AthletePotential> athletes = crews(set);
    for (AthletePotential& athlete : athletes)
        fillFigures(athlete, set);
    return athletes;
}

} // namespace kavela
