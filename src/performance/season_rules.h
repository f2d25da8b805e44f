#pragma once

#include "common/why.h"

#include <span>

namespace kavela {

/// The rules by which the figures of a season are made.
enum class SeasonRule {
    Percent,      ///< behind the winner
    BehindSplits, ///< behind the fastest splits
    CommonSpread,
    OwnSpread,
    ShrunkSpread,
    Worthwhile,
    Trend,
    Medals,
    Finals,
    Semifinals,
    PairDifference,
    TypicalError,
    Won,     ///< head to head
    HeadGap, ///< head to head
    Benchmark,
    MissedGate,
    ExpectedPlace,
    MedalChance,
    MedianPercent, ///< behind the winners, of several races
};

[[nodiscard]] const Rule& ruleOf(SeasonRule rule);

/// All of them, in the order above.
[[nodiscard]] std::span<const Rule> seasonRules();

} // namespace kavela
