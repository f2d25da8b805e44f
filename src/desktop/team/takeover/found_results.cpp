#include "desktop/team/takeover/take_over.h"

#include "analysis/percent_behind.h"
#include "common/text.h"
#include "desktop/team/takeover/team_labels.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/run_timing.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <map>

namespace kavela::desktop {

namespace {

/// What is said of a run without a result.
std::string notFinished() {
    return say("the run was not finished");
}

/// A run as it becomes a record of the team, and what else is known of it.
struct TakenRun {
    FoundResult result;
    bool isWhole = false;

    [[nodiscard]] double total() const {
        return result.run->time + static_cast<double>(result.run->pen);
    }
};

/// Runs that were raced against each other.
using Field = std::vector<TakenRun*>;

bool isWhole(const sectiondata030& timing, std::int64_t splits) {
    return timing.isfullrun || isFullRun(timing.times, splits);
}

TakenRun takenRun(const athletedata031& run, const infodata031& info) {
    const std::string& category = run.cat.empty() ? info.category : run.cat;
    const sectiondata030& timing = run.sectioninfo;
    TakenRun taken;
    taken.isWhole = isWhole(timing, info.totalsplits);
    FoundResult& result = taken.result;
    result.crew = crewText(run.names);
    result.category = teamCategory(category);
    mtPhaseStruct& phase = result.run.emplace();
    phase.phase = teamPhase(run.phase);
    phase.pos = run.pos;
    phase.date = info.date;
    // Lists write 999.9 where there is no result.
    const bool isOfficial = isTakenTime(timing.realtime);
    phase.time = isOfficial ? timing.realtime : timing.totaltime;
    phase.pen = isOfficial ? timing.realpen : timing.totalpen;
    phase.splits = timing.times;
    if (result.category.empty()) {
        result.category = category;
        result.fault = say("no category of the team is called \"{}\"", category);
    } else if (phase.phase.empty()) {
        phase.phase = run.phase;
        result.fault = say("no phase of the team is called \"{}\"", run.phase);
    } else if (!isTakenTime(phase.time) || (!isOfficial && !taken.isWhole) ||
               isRefused(info, run)) {
        result.fault = notFinished();
    }
    return taken;
}

/// Percentages of each split behind the fastest; for whole runs only, as sums need all splits.
void fillPercentages(const Field& field) {
    std::vector<double> best;
    for (const TakenRun* taken : field) {
        const std::vector<double>& times = taken->result.run->splits;
        best.resize(std::max(best.size(), times.size()));
        for (std::size_t i = 0; i < times.size(); ++i)
            if (isTakenTime(times[i]) && (best[i] == 0 || times[i] < best[i]))
                best[i] = times[i];
    }
    for (TakenRun* taken : field) {
        mtPhaseStruct& run = *taken->result.run;
        if (!taken->isWhole)
            continue;
        for (std::size_t i = 0; i < run.splits.size(); ++i)
            run.pers.push_back(percentBehind(run.splits[i], best[i]));
    }
}

/// Positions by total for runs that have none.
void fillPositions(const Field& field) {
    for (TakenRun* taken : field)
        if (taken->result.run->pos <= 0 && taken->result.fault.empty())
            taken->result.run->pos =
                1 + std::ranges::count_if(field, [&](const TakenRun* other) {
                    return other->result.fault.empty() && other->total() < taken->total();
                });
}

std::ptrdiff_t phaseOrder(const std::string& phase) {
    return std::ranges::find(team::Phases, phase) - std::begin(team::Phases);
}

/// Whoever did not reach the final is classified by the semifinal; one who did not reach that
/// either, by the heats, which is less sure: a race with two heats counts in its own way.
std::vector<FoundResult> finalPositions(const std::vector<TakenRun>& runs) {
    std::map<std::pair<std::string, std::string>, const FoundResult*> last;
    std::map<std::string, bool> hasFinal;
    for (const TakenRun& taken : runs) {
        const FoundResult& result = taken.result;
        if (result.fault.empty() && result.run->phase == "Final")
            hasFinal[result.category] = true;
        const FoundResult*& best = last[{result.category, result.crew}];
        if (result.run->pos > 0 && (result.fault.empty() || result.fault == notFinished()) &&
            (!best || phaseOrder(result.run->phase) > phaseOrder(best->run->phase)))
            best = &result;
    }
    std::vector<FoundResult> positions;
    for (const auto& [boat, result] : last)
        if (result && hasFinal.contains(boat.first))
            positions.push_back({boat.second,
                                 boat.first,
                                 std::nullopt,
                                 result->run->pos,
                                 phaseOrder(result->run->phase) >= phaseOrder("Semifinal"),
                                 {}});
    return positions;
}

} // namespace

FoundRace foundInSplitFile(const splittakerdata031& file) {
    std::vector<TakenRun> runs;
    for (const athletedata031& run : file.athletes)
        runs.push_back(takenRun(run, file.info));
    std::map<std::pair<std::string, std::string>, Field> fields;
    for (TakenRun& taken : runs)
        fields[{taken.result.category, taken.result.run->phase}].push_back(&taken);
    for (const auto& [name, field] : fields) {
        fillPercentages(field);
        fillPositions(field);
    }
    FoundRace race{teamEvent(file.info.event), file.info.place, file.info.date, {}};
    if (race.event.empty())
        race.event = teamEvent(file.info.title);
    std::vector<FoundResult> positions = finalPositions(runs);
    for (TakenRun& taken : runs)
        race.results.push_back(std::move(taken.result));
    std::ranges::move(positions, std::back_inserter(race.results));
    return race;
}

FoundRace foundInList(const ResultsList& list, const ListFacts& facts) {
    FoundRace race;
    race.date = facts.date;
    for (const allresultsdata030& line : list.results) {
        FoundResult found;
        found.crew = line.name;
        found.category = facts.category;
        mtPhaseStruct& run = found.run.emplace();
        run.phase = facts.phase;
        run.pos = line.pos;
        run.time = isTakenTime(line.time) ? line.time : 0;
        run.pen = line.pen;
        run.date = facts.date;
        if (line.time < 0 || line.pen < 0)
            found.fault = say("a time or a penalty is below 0");
        else if (run.time == 0 && line.pos <= 0)
            found.fault = notFinished();
        race.results.push_back(found);
        if (facts.isFinalClassification && line.pos > 0)
            race.results.push_back({line.name, facts.category, std::nullopt, line.pos, true, {}});
    }
    return race;
}

} // namespace kavela::desktop
