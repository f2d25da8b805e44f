#pragma once

#include "desktop/charts/interval_chart.h"
#include "desktop/season/shown_season.h"
#include "performance/season_compared.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// What the pages of a season show that have a figure and its interval in each row.
namespace kavela::desktop {

/// A number or a word beside the figure of a row.
struct BesideFigure {
    QString text;
    std::optional<double> number = {};
    std::string id = {}; ///< of its explanation; empty for none
};

struct FigureLine {
    SeasonInterval figure;
    std::vector<BesideFigure> beside;
    std::optional<std::size_t> athlete = {}; ///< of the season, where the row is one's
};

struct FigureTitles {
    QString row;   ///< "Athlete"
    QString value; ///< "Trend, % a year"
    QString range; ///< "90 %"
    QString count; ///< "Runs"
    QStringList beside;

    friend bool operator==(const FigureTitles&, const FigureTitles&) = default;
};

struct FiguresShown {
    QString title;
    QString xTitle;
    FigureTitles titles;
    int decimals = 1;
    bool isSigned = false;
    SeasonIntervalChart chart; ///< its rows are those of the lines
    QString commonName;        ///< of its line
    QString emptyText;
    std::vector<FigureLine> lines;
};

/// "+0.4", "2.1"; a dash for none.
[[nodiscard]] QString shownFigure(const std::optional<double>& value, int decimals, bool isSigned);
/// "-0.3 to +0.4", or that there are too few.
[[nodiscard]] QString shownRange(const std::optional<Interval>& interval, int decimals,
                                 bool isSigned);

[[nodiscard]] FiguresShown pairFigures(const ShownSeason& shown, RacePair pair);
[[nodiscard]] FiguresShown spreadFigures(const ShownSeason& shown);
[[nodiscard]] FiguresShown trendFigures(const ShownSeason& shown, TrendOf of);
/// Everybody whom the athlete met.
[[nodiscard]] FiguresShown headFigures(const ShownSeason& shown, std::size_t athlete);
[[nodiscard]] FiguresShown rateFigures(const ShownSeason& shown, RaceRate rate);
[[nodiscard]] FiguresShown placeFigures(const ShownSeason& shown);
[[nodiscard]] FiguresShown benchmarkFigures(const ShownSeason& shown, const std::string& phase,
                                            std::size_t athlete);

/// The rows of the chart that have a figure, at most `MostMarks`; the place of each among the lines
/// is told beside it.
struct FigureMarks {
    IntervalChartContent content;
    std::vector<std::size_t> lines; ///< by mark
};
inline constexpr std::size_t MostMarks = 32;
[[nodiscard]] FigureMarks marksOf(const FiguresShown& shown);

} // namespace kavela::desktop
