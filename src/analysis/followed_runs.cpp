#include "analysis/followed_runs.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace kavela {

namespace {

using Identity = std::tuple<std::vector<std::string>, std::string, std::string>;

Identity identityOf(const analyzerdata& run) {
    return {run.names, run.phase, run.category};
}

std::map<Identity, std::vector<std::size_t>> byIdentity(const RaceSet& set) {
    std::map<Identity, std::vector<std::size_t>> runs;
    for (std::size_t i = 0; i < set.alldata.size(); ++i)
        runs[identityOf(set.alldata[i])].push_back(i);
    return runs;
}

} // namespace

std::vector<std::optional<std::size_t>> followedRuns(const RaceSet& before, const RaceSet& after) {
    std::vector<std::optional<std::size_t>> followed(before.alldata.size());
    std::vector<bool> isTaken(after.alldata.size());
    const auto now = byIdentity(after);
    for (const auto& [identity, runs] : byIdentity(before)) {
        const auto found = now.find(identity);
        for (std::size_t i = 0; found != now.end() && i < runs.size(); ++i) {
            if (i >= found->second.size())
                break;
            followed[runs[i]] = found->second[i];
            isTaken[found->second[i]] = true;
        }
    }
    for (std::size_t i = 0; i < std::min(followed.size(), isTaken.size()); ++i)
        if (!followed[i] && !isTaken[i] &&
            before.alldata[i].sectioninfo.times == after.alldata[i].sectioninfo.times)
            followed[i] = i;
    return followed;
}

} // namespace kavela
