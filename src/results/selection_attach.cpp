#include "results/selection_attach.h"

#include "splitdata/athlete_keys.h"
#include "splitdata/run_timing.h"

#include <cmath>
#include <set>

namespace kavela {

namespace {

/// Whether the times from video tell the whole run; a file may hold no more than the sum.
bool isTimedWhole(const sectiondata030& timing, std::int64_t splits) {
    return timing.times.empty() || splits < 1 || timing.isfullrun ||
           isFullRun(timing.times, splits);
}

bool isTime(double seconds) {
    return std::isfinite(seconds) && seconds > 0;
}

FoundRun foundRun(const athletedata031& run, const infodata031& info) {
    const sectiondata030& timing = run.sectioninfo;
    FoundRun found;
    found.name = crewText(run.names);
    found.category = run.cat.empty() ? info.category : run.cat;
    found.phase = run.phase;
    if (isTime(timing.xTime))
        found.expectedTime = timing.xTime;
    if (isTime(timing.realtime)) {
        found.time = timing.realtime;
        found.penalty = timing.realpen;
    } else if (isTime(timing.totaltime) && isTimedWhole(timing, info.totalsplits)) {
        found.time = timing.totaltime;
        found.penalty = timing.totalpen;
    } else {
        found.fault = "did not finish the run";
    }
    return found;
}

} // namespace

FoundRuns foundInSplitFiles(const selectionracesStruct_v3& document,
                            std::span<const splittakerdata031> files) {
    FoundRuns found;
    found.isWholeRace = true;
    std::set<std::string> labels;
    for (const splittakerdata031& file : files)
        for (const athletedata031& run : file.athletes) {
            found.runs.push_back(foundRun(run, file.info));
            FoundRun& last = found.runs.back();
            last.athlete = athleteOf(document, last.category, last.name);
            labels.insert(categoryKey(last.category));
        }
    for (std::size_t c = 0; c < document.categories.size(); ++c)
        if (labels.contains(categoryKey(document.categories[c].cat)))
            found.raced.push_back(c);
    return found;
}

Attached attachRace(selectionracesStruct_v3& document, std::size_t race,
                    std::span<const splittakerdata031> files) {
    const FoundRuns found = foundInSplitFiles(document, files);
    Attached attached{enterRuns(document, race, found), {}};
    for (const FoundRun& run : found.runs)
        if (!run.isTaken())
            attached.unused.push_back(
                {run.name, run.category, run.athlete ? run.fault : "is not in the selection"});
    return attached;
}

} // namespace kavela
