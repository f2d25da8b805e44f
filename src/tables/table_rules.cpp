#include "tables/table_rules.h"

#include <array>
#include <cstddef>

namespace kavela {

namespace {

/// In the order of TableRule.
constexpr std::array TableRuleTable{
    Rule{"table.read", "As it stands in the list, read as a number.", "list", ""},
    Rule{"table.total", "The columns of the row added up.", "Σ columns", ""},
    Rule{"table.rank", "The place in the column: one more than are better; times to the hundredth.",
         "1 + better", ""},
    Rule{"table.gap", "How far the number is behind the best of the column.", "own − best", ""},
    Rule{"table.percent", "How many percent the number is behind the best of the column.",
         "100 · (own / best − 1)", ""},
    Rule{"table.percentile", "How many percent of the others in the column are better.",
         "100 · better / others", ""},
    Rule{"table.difference", "The first column less the second.", "first − second", ""},
    Rule{"table.pivot.count", "How many rows say something in the column.", "number of rows", ""},
    Rule{"table.pivot.sum", "The numbers of all these rows added up.", "Σ rows", ""},
    Rule{"table.pivot.mean", "The mean of the numbers of these rows.", "Σ rows / number of rows",
         ""},
    Rule{"table.pivot.median", "As many of these rows have less as have more.", "median of rows",
         ""},
    Rule{"table.pivot.least", "The least number of these rows.", "least of rows", ""},
    Rule{"table.pivot.most", "The largest number of these rows.", "largest of rows", ""},
};
static_assert(TableRuleTable.size() == static_cast<std::size_t>(TableRule::PivotMost) + 1);

} // namespace

const Rule& ruleOf(TableRule rule) {
    return TableRuleTable[static_cast<std::size_t>(rule)];
}

std::span<const Rule> tableRules() {
    return TableRuleTable;
}

} // namespace kavela
