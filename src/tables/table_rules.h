#pragma once

#include "common/why.h"

#include <span>

namespace kavela {

/// The rules by which the numbers of a table are made.
enum class TableRule {
    Read, ///< from the list
    Total,
    Rank,
    Gap,
    Percent,
    Percentile,
    Difference,
    PivotCount,
    PivotSum,
    PivotMean,
    PivotMedian,
    PivotLeast,
    PivotMost,
};

[[nodiscard]] const Rule& ruleOf(TableRule rule);

/// All of them, in the order above.
[[nodiscard]] std::span<const Rule> tableRules();

} // namespace kavela
