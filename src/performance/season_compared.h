#pragma once

#include "performance/season_charts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the charts draw that hold the athletes of a team against one another, as plain values.
namespace kavela {

/// What changes from one phase of a race to a later one, of every athlete, against no change.
[[nodiscard]] SeasonIntervalChart pairChart(const Season& season, RacePair pair);

/// How often each athlete gets so far, in percent.
[[nodiscard]] SeasonIntervalChart raceRateChart(const Season& season, RaceRate rate);

/// The expected place of every boat of the field, with the places between which it comes in with
/// 90 %; the best first.
[[nodiscard]] SeasonIntervalChart expectedPlaceChart(const Season& season);

/// The places, from 1, between which 90 % lie: at most 5 % are in front of the first and behind the
/// last. Throws std::invalid_argument for no places.
[[nodiscard]] Interval placeRange(std::span<const double> chances);

/// What ranks took in a phase, each with its quartiles, against the athlete's own median where it
/// is known. Of fewer than three races there are no quartiles.
[[nodiscard]] SeasonIntervalChart benchmarkIntervals(const Season& season, std::string_view phase,
                                                     std::optional<std::size_t> athlete = {});

/// The phases that a benchmark is known of, in their order.
[[nodiscard]] std::vector<std::string> benchmarkPhases(const Season& season);

/// The median of a year's percentages behind the winner.
struct YearMedian {
    std::int64_t year = 0;
    double percent = 0;
    std::size_t runs = 0;

    friend bool operator==(const YearMedian&, const YearMedian&) = default;
};

/// Those of one phase, in the order of the years; years without a known percentage are left out, as
/// are runs with a missed gate.
[[nodiscard]] std::vector<YearMedian> yearMedians(const SeasonMember& member,
                                                  std::string_view phase);

/// The athletes beside each other over the years.
struct ComparisonChart {
    struct Line {
        std::string name;
        std::vector<YearMedian> years;
        std::optional<double> percent; ///< median of all years
        std::size_t runs = 0;          ///< that it comes from
    };
    std::string phase;
    std::vector<Line> lines; ///< by athlete of the season
    std::string sentence;
};

[[nodiscard]] ComparisonChart comparisonChart(const Season& season, std::string_view phase);

} // namespace kavela
