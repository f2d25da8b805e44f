#include "analysis/ranking.h"

#include "analysis/standing.h"
#include "common/number_text.h"

#include <algorithm>
#include <map>

namespace kavela {

namespace {

double totalWithPenalties(const analyzerdata& run) {
    return run.sectioninfo.totaltime + static_cast<double>(run.sectioninfo.totalpen);
}

std::vector<RankedRun> fullRuns(const RaceSet& set, std::span<const std::size_t> runs) {
    std::vector<RankedRun> full;
    for (const std::size_t run : runs) {
        const double total = totalWithPenalties(set.alldata[run]);
        // The sum of absurd times may be no number, and then there is no order to put it in.
        if (isWhole(set, set.alldata[run]) && isTaken(roundedToHundredths(total)))
            full.push_back({run, 0, total, 0});
    }
    return full;
}

} // namespace

std::vector<RunGroup> runGroups(const RaceSet& set) {
    std::vector<RunGroup> groups;
    std::map<std::pair<std::string, std::string>, std::size_t> places;
    for (std::size_t i = 0; i < set.alldata.size(); ++i) {
        const analyzerdata& run = set.alldata[i];
        const auto [place, isNew] = places.try_emplace({run.phase, run.category}, groups.size());
        if (isNew)
            groups.push_back({run.phase, run.category, {}});
        groups[place->second].runs.push_back(i);
    }
    return groups;
}

std::vector<RankedRun> ranking(const RaceSet& set, std::span<const std::size_t> runs) {
    std::vector<RankedRun> ranked = fullRuns(set, runs);
    const auto shown = [](const RankedRun& run) { return roundedToHundredths(run.total); };
    std::ranges::stable_sort(ranked, {}, shown);
    for (std::size_t i = 0; i < ranked.size(); ++i) {
        const bool isTied = i > 0 && shown(ranked[i]) == shown(ranked[i - 1]);
        ranked[i].rank = isTied ? ranked[i - 1].rank : static_cast<int>(i) + 1;
        ranked[i].gap = shown(ranked[i]) - shown(ranked.front());
    }
    return ranked;
}

std::vector<std::optional<int>> ranksInGroups(const RaceSet& set) {
    std::vector<std::optional<int>> ranks(set.alldata.size());
    for (const RunGroup& group : runGroups(set))
        for (const RankedRun& ranked : ranking(set, group.runs))
            ranks[ranked.run] = ranked.rank;
    return ranks;
}

} // namespace kavela
