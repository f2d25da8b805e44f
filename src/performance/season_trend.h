#pragma once

#include "performance/season_data.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// Whether an athlete comes nearer to the winners from year to year.
namespace kavela {

enum class TrendVerdict {
    Faster, ///< the whole interval is below 0
    Slower, ///< the whole interval is above 0
    Unclear ///< neither, or too few runs for a slope
};

/// "faster", "slower" and "unclear".
[[nodiscard]] std::string_view verdictText(TrendVerdict verdict);

/// The slope of 100·ln(1 + percent/100) against the day.
struct SeasonTrend {
    static constexpr std::size_t LeastRuns = 4;
    static constexpr double LeastDays = 60;

    std::size_t runs = 0;          ///< without missed gates, with a percentage
    std::optional<double> perYear; ///< per 365.25 days; none for too few runs or days
    std::optional<Interval> interval;
    TrendVerdict verdict = TrendVerdict::Unclear;
};

/// Behind whom: the winners with penalties, or the fastest splits without.
enum class TrendOf { Winner, Splits };

[[nodiscard]] SeasonTrend seasonTrend(const SeasonMember& member, TrendOf of, Why* why = nullptr);

} // namespace kavela
