#include "results/result_rules.h"

#include <array>
#include <cstddef>

namespace kavela {

namespace {

/// In the order of ResultRule.
constexpr std::array ResultRuleTable{
    Rule{"score", "What counts is summed and divided by three, however many races there were.",
         "Σ counted / 3", "the rules of the selection"},
    Rule{"score.sum", "The results and the bonus that count.", "Σ counted", ""},
    Rule{"score.counted", "Counts in the score.", "percent", ""},
    Rule{"score.worst", "Dropped: the worst result of all.", "not in the score", ""},
    Rule{"score.bonus", "Dropped too: a bonus stands among the results.", "not in the score", ""},
    Rule{"score.percent", "How far behind the best of the category in this race, with penalties.",
         "100 · ((time + penalties) / best − 1)", ""},
    Rule{"score.missing", "A race without a result stands for this much.", "999.99", ""},
    Rule{"category.medalist",
         "More than two medals, or one at a championship, in the first two "
         "seasons.",
         "medals > 2 or championship medals ≥ 1", "the rules of the categorization"},
    Rule{"category.medal", "Three times among the first six in the first two seasons.", "top 6 ≥ 3",
         "the rules of the categorization"},
    Rule{"category.final", "Four times among the first fifteen in the first two seasons.",
         "top 15 ≥ 4", "the rules of the categorization"},
    Rule{"category.senior", "None of the other levels is reached in the first two seasons.",
         "otherwise", "the rules of the categorization"},
    Rule{"category.medals", "Races with a final position of 1 to 3.", "count", ""},
    Rule{"category.top6", "Races with a final position of 1 to 6.", "count", ""},
    Rule{"category.top15", "Races with a final position of 1 to 15.", "count", ""},
    Rule{"category.events", "Races with a final position.", "count", ""},
};
static_assert(ResultRuleTable.size() == static_cast<std::size_t>(ResultRule::Events) + 1);

} // namespace

const Rule& ruleOf(ResultRule rule) {
    return ResultRuleTable[static_cast<std::size_t>(rule)];
}

std::span<const Rule> resultRules() {
    return ResultRuleTable;
}

} // namespace kavela
