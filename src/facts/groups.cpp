#include "facts/groups.h"

#include "common/number_text.h"

#include <algorithm>
#include <map>
#include <utility>

namespace kavela {

namespace {

constexpr std::string_view RaceSession = "Race";

/// What runs of one file that compete share: category, and where it counts the phase.
using RivalKey = std::pair<TextId, TextId>;

template <class Phase>
std::vector<RivalGroup> grouped(const FactStore& facts, const Phase& phaseOf) {
    std::vector<RivalGroup> groups;
    std::map<RivalKey, std::size_t> places;
    for (std::size_t i = 0; i < facts.runs().size(); ++i) {
        const RunRow& run = facts.runs()[i];
        if (i > 0 && run.file != facts.runs()[i - 1].file)
            places.clear();
        const RivalKey key{run.categoryKey, phaseOf(run)};
        const auto [place, isNew] = places.try_emplace(key, groups.size());
        if (isNew)
            groups.emplace_back();
        groups[place->second].push_back(i);
    }
    return groups;
}

void rankGroup(const FactStore& facts, const RivalGroup& group,
               std::vector<std::optional<int>>& ranks) {
    std::vector<double> totals;
    for (const std::size_t run : group)
        if (facts.runs()[run].isComplete)
            totals.push_back(roundedToHundredths(facts.runs()[run].total));
    std::ranges::sort(totals);
    for (const std::size_t run : group)
        if (facts.runs()[run].isComplete) {
            const double own = roundedToHundredths(facts.runs()[run].total);
            const auto smaller = std::ranges::lower_bound(totals, own) - totals.begin();
            ranks[run] = static_cast<int>(smaller) + 1;
        }
}

} // namespace

std::vector<RivalGroup> groupsOf(const FactStore& facts) {
    return grouped(facts, [&](const RunRow& run) {
        return facts.text(facts.fileOf(run).session) == RaceSession ? run.phaseKey : TextId{0};
    });
}

std::vector<RivalGroup> categoriesOf(const FactStore& facts) {
    return grouped(facts, [](const RunRow&) { return TextId{0}; });
}

std::vector<std::optional<int>> ranksOf(const FactStore& facts,
                                        const std::vector<RivalGroup>& groups) {
    std::vector<std::optional<int>> ranks(facts.runs().size());
    for (const RivalGroup& group : groups)
        rankGroup(facts, group, ranks);
    return ranks;
}

} // namespace kavela
