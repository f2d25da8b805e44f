#pragma once

#include "performance/penalty_groupings.h"
#include "performance/penalty_passages.h"
#include "statistics/intervals.h"
#include "statistics/shrinkage.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// How often gates are touched and missed, by gate, crew, month and so on.
namespace kavela {

/// From this chance of being above the common rate on, a row stands out.
inline constexpr double StandsOutFrom = 0.95;

struct RateRow {
    std::string key;
    std::string label;                  ///< for people
    std::uint32_t file = 0;             ///< of the first passage
    std::optional<std::int64_t> number; ///< of the gate, the section or the tenth
    std::optional<RateOf> touches;      ///< nothing where nobody came
    std::optional<RateOf> missed;
    ShrunkRate shrunk; ///< of the touches

    [[nodiscard]] bool standsOut() const { return shrunk.above >= StandsOutFrom; }
};

struct PenaltyRates {
    RateBy by = RateBy::Gate;
    std::size_t runs = 0;    ///< whose penalties are known by gate
    std::size_t leftOut = 0; ///< other runs
    std::optional<RateOf> clean;
    CommonRate common;
    std::vector<RateRow> rows; ///< the highest shrunk rate first
};

[[nodiscard]] PenaltyRates penaltyRates(const FactStore& facts, RateBy by,
                                        const PenaltyChoice& choice = {});

/// What the touches of the rows have in common.
[[nodiscard]] CommonRate commonTouches(std::span<const PassageRow> rows, Why* why = nullptr);

/// Touches among the passages of a row.
[[nodiscard]] std::optional<RateOf> touchRate(const FactStore& facts, const PassageRow& row,
                                              Why* why = nullptr);

/// Missed gates among the passages of a row.
[[nodiscard]] std::optional<RateOf> missedRate(const FactStore& facts, const PassageRow& row,
                                               Why* why = nullptr);

/// Which number of a shrunk rate is asked for.
enum class ShrunkFigure { Rate, Above };

/// The touches of a row drawn towards what all rows have in common.
[[nodiscard]] ShrunkRate shrunkTouches(const FactStore& facts, const PassageRow& row,
                                       std::span<const PassageRow> all, const CommonRate& common,
                                       ShrunkFigure figure = ShrunkFigure::Rate,
                                       Why* why = nullptr);

} // namespace kavela
