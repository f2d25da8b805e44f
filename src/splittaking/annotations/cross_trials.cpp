#include "splittaking/annotations/cross_trials.h"

#include <algorithm>

namespace kavela {

namespace {

ttupstream030& trialEntryAt(ttdata030& trial, std::int64_t gate) {
    const auto place = upstreamAt(trial, gate);
    if (!place)
        throw std::out_of_range("upstream gate " + std::to_string(gate) + " is not marked");
    return trial.upstreams[*place];
}

ttupstream030& addTrialEntry(ttdata030& trial, const crossinfodata030& course, std::int64_t gate) {
    if (std::ranges::find(course.gates, gate) == course.gates.end())
        throw std::out_of_range("gate " + std::to_string(gate) + " is not on the cross course");
    const auto next = std::ranges::find_if(
        trial.upstreams, [&](const ttupstream030& upstream) { return upstream.gateNum > gate; });
    return *trial.upstreams.insert(next, {gate, {}, 0, 0});
}

const Stamps* lastStamps(const std::vector<Stamps>& marks) {
    const auto last = std::find_if(marks.rbegin(), marks.rend(),
                                   [](const Stamps& stamps) { return !stamps.empty(); });
    return last == marks.rend() ? nullptr : &*last;
}

/// Athletes with a time, the fastest first.
std::vector<std::string> athletesByTime(const crossdata030& cross) {
    std::vector<const ttdata030*> timed;
    for (const ttdata030& trial : cross.timetrials)
        if (trial.time > 0)
            timed.push_back(&trial);
    std::ranges::stable_sort(timed, {}, [](const ttdata030* trial) { return trial->time; });
    std::vector<std::string> athletes;
    for (const ttdata030* trial : timed)
        athletes.push_back(trial->athlete);
    return athletes;
}

} // namespace

RunMarks marksOf(const ttdata030& trial) {
    RunMarks marks{std::nullopt, trial.splittimes};
    const Stamps* last = lastStamps(trial.splittimes);
    if (last == nullptr || trial.time <= 0)
        return marks;
    marks.start = *last;
    for (CMTime& stamp : *marks.start)
        stamp = later(stamp, -trial.time);
    return marks;
}

void applyMarks(const RunMarks& marks, ttdata030& trial) {
    trial.splittimes = marks.marks;
    const Stamps* last = lastStamps(marks.marks);
    trial.time = 0;
    if (last == nullptr)
        return;
    const bool isStarted = marks.start && !marks.start->empty();
    trial.time =
        isStarted ? secondsFrom(marks.start->front(), last->front()) : last->front().seconds();
}

std::optional<std::size_t> upstreamAt(const ttdata030& trial, std::int64_t gate) {
    const auto found = std::ranges::find(trial.upstreams, gate, &ttupstream030::gateNum);
    if (found == trial.upstreams.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - trial.upstreams.begin());
}

void markUpstream(ttdata030& trial, const crossinfodata030& course, std::int64_t gate,
                  GateMark which, const CMTime& moment) {
    ttupstream030& entry =
        upstreamAt(trial, gate) ? trialEntryAt(trial, gate) : addTrialEntry(trial, course, gate);
    setMark(entry.cmtimes, which, moment);
}

void clearUpstreamMark(ttdata030& trial, std::int64_t gate, GateMark which) {
    clearMark(trialEntryAt(trial, gate).cmtimes, which);
}

std::size_t addTrial(crossdata030& cross, std::string athlete, std::string videoname) {
    ttdata030& trial = cross.timetrials.emplace_back();
    trial.athlete = std::move(athlete);
    trial.videoname = std::move(videoname);
    rankTrials(cross);
    return cross.timetrials.size() - 1;
}

void removeTrial(crossdata030& cross, std::size_t trial) {
    (void)entryOf(cross.timetrials, trial, "time trial");
    eraseEntry(cross.timetrials, trial);
    rankTrials(cross);
}

void rankTrials(crossdata030& cross) {
    for (ttdata030& trial : cross.timetrials) {
        const auto isFaster = [&](const ttdata030& other) {
            return other.time > 0 && other.time < trial.time;
        };
        trial.pos = trial.time > 0 ? std::ranges::count_if(cross.timetrials, isFaster) + 1 : 0;
    }
}

std::vector<std::vector<std::string>> seededHeats(const crossdata030& cross, std::size_t boats) {
    std::vector<std::string> athletes = athletesByTime(cross);
    athletes.resize(std::min(athletes.size(), boats));
    const std::size_t heats = (athletes.size() + BoatsInHeat - 1) / BoatsInHeat;
    std::vector<std::vector<std::string>> seeded(heats);
    // To and fro over the heats: the sum of the seeds is the same in all of them.
    for (std::size_t k = 0; k < athletes.size(); ++k) {
        const std::size_t place = k % heats;
        const bool isWayBack = k / heats % 2 == 1;
        seeded[isWayBack ? heats - 1 - place : place].push_back(std::move(athletes[k]));
    }
    return seeded;
}

} // namespace kavela
