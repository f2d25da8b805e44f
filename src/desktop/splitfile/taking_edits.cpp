#include "desktop/splitfile/taking_edits.h"

#include "splitdata/run_timing.h"
#include "splittaking/annotations/film_marks.h"
#include "splittaking/penalties.h"

#include <utility>

namespace kavela::desktop {

namespace {

/// The record is shared with the states before, which keep theirs.
template <class Record, class Change>
void changeCopy(std::shared_ptr<const Record>& record, const Change& change) {
    auto edited = std::make_shared<Record>(*record);
    change(*edited);
    record = std::move(edited);
}

void fitToCourse(athletedata031& run, const infodata031& course) {
    (void)fitPenalties(run, course.gates);
    if (const RunMarks marks = marksOf(run.sectioninfo); marks != RunMarks())
        applyMarks(marks, run, course.totalsplits);
}

} // namespace

TakingState withRun(const TakingState& before, std::size_t run,
                    const std::function<void(athletedata031&)>& change) {
    TakingState after = before;
    changeCopy(after.runs.at(run).record, change);
    return after;
}

TakingState withEveryRun(const TakingState& before,
                         const std::function<void(athletedata031&)>& change) {
    TakingState after = before;
    for (TakenRun& each : after.runs)
        changeCopy(each.record, change);
    return after;
}

TakingState withCross(const TakingState& before, TrialStarts starts,
                      const std::function<void(crossdata030&)>& change) {
    TakingState after = before;
    changeCopy(after.cross, change);
    after.trialStarts = std::move(starts);
    return after;
}

TakingState withInfo(const TakingState& before, const std::function<void(infodata031&)>& change) {
    TakingState after = before;
    changeCopy(after.info, change);
    const infodata031& course = *after.info;
    if (course.gates == before.info->gates && course.totalsplits == before.info->totalsplits)
        return after;
    return withEveryRun(after, [&](athletedata031& run) { fitToCourse(run, course); });
}

TakingState withMarks(const TakingState& before, std::size_t run, const RunMarks& marks) {
    TakingState after = withRun(before, run, [&](athletedata031& record) {
        const auto start = startOf(record);
        applyMarks(marks, record, before.info->totalsplits);
        if (startOf(record) != start)
            retimeNotes(record);
    });
    after.runs[run].start = marks.start;
    return after;
}

TakingState withMoreRuns(const TakingState& before, std::vector<athletedata031> runs) {
    TakingState after = before;
    for (athletedata031& run : runs) {
        (void)fitPenalties(run, before.info->gates);
        after.runs.push_back({std::make_shared<athletedata031>(std::move(run)), std::nullopt});
    }
    return after;
}

TakingState withoutRun(const TakingState& before, std::size_t run) {
    TakingState after = before;
    (void)after.runs.at(run);
    after.runs.erase(after.runs.begin() + static_cast<std::ptrdiff_t>(run));
    return after;
}

TakingState withRunMoved(const TakingState& before, std::size_t run, std::size_t to) {
    TakingState after = before;
    TakenRun moved = std::move(after.runs.at(run));
    (void)after.runs.at(to);
    after.runs.erase(after.runs.begin() + static_cast<std::ptrdiff_t>(run));
    after.runs.insert(after.runs.begin() + static_cast<std::ptrdiff_t>(to), std::move(moved));
    return after;
}

TakingState withRace(const TakingState& before, TakingState race) {
    TakingState after = before;
    if (after.runs.empty()) {
        race.day = after.day;
        return race;
    }
    after.runs.insert(after.runs.end(), race.runs.begin(), race.runs.end());
    return after;
}

TakingState withResults(const TakingState& before, const ResultsList& list,
                        const std::vector<ResultOfRun>& runs) {
    TakingState after = before;
    changeCopy(after.info, [&](infodata031& info) {
        info.resultsCSVdata.insert(info.resultsCSVdata.end(), list.results.begin(),
                                   list.results.end());
    });
    for (const ResultOfRun& each : runs)
        changeCopy(after.runs.at(each.run).record, [&](athletedata031& record) {
            takeResult(record, list.results.at(each.line.value()));
        });
    return after;
}

/// The runs that it is about are whole, so that nothing of them is lost; the others only tell who
/// they are.
std::optional<TakingState> withOfficial(const TakingState& before,
                                        const OfficialDifference& difference) {
    splittakerdata031 race = timesOf(before);
    std::vector<std::size_t> changed;
    for (const auto& run : {difference.run, difference.other})
        if (run && *run < before.runs.size()) {
            changed.push_back(*run);
            race.athletes[*run] = *before.runs[*run].record;
        }
    if (!takeOver(race, difference))
        return std::nullopt;
    TakingState after = before;
    if (race.info.resultsCSVdata.size() != before.info->resultsCSVdata.size())
        after.info = std::make_shared<infodata031>(std::move(race.info));
    for (const std::size_t run : changed)
        after.runs[run].record = std::make_shared<athletedata031>(std::move(race.athletes[run]));
    return after;
}

} // namespace kavela::desktop
