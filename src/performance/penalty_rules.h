#pragma once

#include "common/why.h"
#include "statistics/intervals.h"

#include <cstddef>
#include <span>
#include <string>

/// By which rules the numbers about penalties are made, and how those are told.
namespace kavela {

namespace penalty_rules {

extern const Rule Single;    ///< a rate of its own
extern const Rule Ranked;    ///< a rate drawn towards the common one
extern const Rule Common;    ///< what the ranked rates have in common
extern const Rule Above;     ///< the chance to be above the common rate
extern const Rule Clean;     ///< runs without a penalty
extern const Rule Detail;    ///< a share of what was noted
extern const Rule Cost;      ///< places lost by a penalty
extern const Rule Rank;      ///< a rank in a group
extern const Rule Touches;   ///< touches per run of a third
extern const Rule Missed;    ///< missed gates per run of a third
extern const Rule Paddling;  ///< paddling time of a third
extern const Rule Total;     ///< the same with penalties
extern const Rule ThirdRuns; ///< how many are in a third
extern const Rule BreakEven; ///< touches that 1 % of speed pays for

} // namespace penalty_rules

[[nodiscard]] std::span<const Rule* const> penaltyRules();

/// "7.4 %" for 0.074.
[[nodiscard]] std::string rateText(double rate);

/// Tells a rate with its count, its chances and its interval.
void tellRate(Why& why, const Rule& rule, const RateOf& rate);

/// What is said of runs whose penalties are not known by gate.
[[nodiscard]] std::string leftOutText(std::size_t runs);

} // namespace kavela
