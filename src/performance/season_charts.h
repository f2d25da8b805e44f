#pragma once

#include "performance/season.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the charts of a season draw, as plain values, each with the one sentence that it says.
namespace kavela {

/// One run on the way through the races.
struct ProgressionPoint {
    std::size_t race = 0;  ///< of the member's races
    std::size_t phase = 0; ///< of the race's phases
    ReferenceDate date;
    double percent = 0; ///< behind the winner, or the fastest splits
    bool isMissed = false;

    friend bool operator==(const ProgressionPoint&, const ProgressionPoint&) = default;
};

struct ProgressionChart {
    TrendOf of = TrendOf::Winner;
    std::vector<ProgressionPoint> points; ///< by day
    std::optional<double> medalLine;      ///< what the third of a final was behind, in the median
    std::string sentence;
};

/// The two are never in one chart: the splits leave the penalties out and have no one winner.
[[nodiscard]] ProgressionChart progressionChart(const Season& season, std::size_t athlete,
                                                TrendOf of = TrendOf::Winner);

/// Behind the winners; behind the fastest splits where that tells a trend and the winners, of whom
/// too few are known, do not.
[[nodiscard]] ProgressionChart usualProgression(const Season& season, std::size_t athlete);

/// "●", "▲", "■": heats, semifinal, final; "·" for any other phase.
[[nodiscard]] std::string_view phaseMark(std::string_view phase);

/// A figure with where the true one lies.
struct SeasonInterval {
    std::string label;
    std::string id; ///< of the figure's explanation
    std::optional<double> value;
    std::optional<Interval> interval;
    std::size_t runs = 0;
    bool isSure = false; ///< its interval is apart from what it is held against
};

struct SeasonIntervalChart {
    std::vector<SeasonInterval> rows;
    std::optional<double> line; ///< across all rows
    std::string unit;
    std::string sentence;
};

/// The shrunk spread of every athlete of the team, against the common one.
[[nodiscard]] SeasonIntervalChart spreadChart(const Season& season);
/// The trend of every athlete, against no change.
[[nodiscard]] SeasonIntervalChart trendChart(const Season& season, TrendOf of = TrendOf::Winner);
/// How often an athlete was ahead of each rival in percent, against half; the first `most` rows.
[[nodiscard]] SeasonIntervalChart headToHeadChart(const Season& season, std::size_t athlete,
                                                  std::size_t most);

/// What ranks took in a phase, with where the athlete stands.
struct BenchmarkChart {
    struct Box {
        std::size_t rank = 0;
        std::size_t races = 0;
        double least = 0;
        double lowerQuartile = 0;
        double median = 0;
        double upperQuartile = 0;
        double most = 0;
    };
    std::string phase;
    std::vector<Box> boxes;    ///< the winners, who are behind nobody, left out
    std::optional<double> own; ///< the athlete's median percentage in the phase
    std::string sentence;
};

[[nodiscard]] BenchmarkChart benchmarkChart(const Season& season, std::string_view phase,
                                            std::optional<std::size_t> athlete = {});

/// The chances of the places by boat.
struct PlacesChart {
    struct Row {
        std::size_t boat = 0;
        std::string name;
        bool isMember = false;
        std::vector<double> places;
        double expected = 0;
        double medal = 0;
    };
    std::vector<Row> rows; ///< the best first
    std::string sentence;
};

[[nodiscard]] PlacesChart placesChart(const Season& season);

/// "2.1 % would have been a medal in 7 of 10 finals"; empty where no final is known.
[[nodiscard]] std::string medalSentence(std::span<const Benchmark> all, double percent);

} // namespace kavela
