#include "performance/unknown_names.h"

#include "facts/query.h"
#include "results/name_likeness.h"

#include <set>
#include <utility>

namespace kavela {

namespace {

bool isAboutAthlete(const Condition& condition) {
    const QueryColumn* const column = condition.choices.front().column;
    return column && column->name == "athlete" && condition.comparison == Comparison::Equal;
}

bool isSomebody(const Condition& condition, const FactStore& facts) {
    Query alone;
    alone.conditions.push_back(condition);
    alone.first = 1;
    return answer(facts, std::move(alone)).size() > 0;
}

/// Everybody once, however many runs there are.
std::vector<std::string> namesIn(const FactStore& facts) {
    std::set<TextId> crews;
    for (const RunRow& run : facts.runs())
        crews.insert(run.names);
    std::set<std::string> names;
    for (const TextId crew : crews)
        for (std::string& name : facts.lines(crew))
            names.insert(std::move(name));
    return {names.begin(), names.end()};
}

std::vector<std::string> namesLike(const std::string& name, const std::vector<std::string>& all) {
    constexpr std::size_t MostNames = 3;
    constexpr double LeastLikeness = 0.3;
    std::vector<std::string> like;
    for (const std::size_t at : byLikeness(name, all)) {
        if (like.size() == MostNames || nameLikeness(name, all[at]) < LeastLikeness)
            break;
        like.push_back(all[at]);
    }
    return like;
}

} // namespace

std::vector<UnknownName> unknownNames(const Query& query, const FactStore& facts) {
    std::vector<UnknownName> unknown;
    std::vector<std::string> names;
    for (const Condition& condition : query.conditions) {
        if (!isAboutAthlete(condition) || isSomebody(condition, facts))
            continue;
        if (names.empty())
            names = namesIn(facts);
        unknown.push_back({condition.value, namesLike(condition.value, names)});
    }
    return unknown;
}

} // namespace kavela
