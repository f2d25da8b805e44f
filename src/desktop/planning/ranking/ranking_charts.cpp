#include "desktop/planning/ranking/ranking_charts.h"

#include "planning/season_results.h"
#include "splitdata/run_timing.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <map>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostPhases = 8;

struct RankingCharts {
    Q_DECLARE_TR_FUNCTIONS(RankingCharts)
};

QStringList releases(const std::vector<RankingEntry>& entries) {
    QStringList names;
    for (const RankingEntry& entry : entries)
        names.append(entry.release ? QString::number(*entry.release) : QString("–"));
    return names;
}

ChartContent byRelease(const std::vector<RankingEntry>& entries, const QString& title) {
    ChartContent content;
    content.title = title;
    content.xTitle = RankingCharts::tr("Release");
    content.across = ChartContent::Across::Category;
    content.categories = releases(entries);
    return content;
}

struct DayPenalties {
    double runs = 0;
    double touches = 0;
    double fifties = 0;
};

} // namespace

ChartContent positionChart(const icfdataplanning_v1& ranking) {
    const std::vector<RankingEntry> entries = rankingEntries(ranking);
    ChartContent content = byRelease(entries, RankingCharts::tr("Position"));
    content.yReversed = content.yWhole = true;
    ChartSeries series{RankingCharts::tr("Position"), {}, ChartSeries::Form::LineAndPoints, 0};
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].position.value_or(0) > 0)
            series.points.emplace_back(static_cast<double>(i),
                                       static_cast<double>(*entries[i].position));
    content.series = {std::move(series)};
    content.emptyText = RankingCharts::tr("The chart begins with the first position.");
    return content;
}

ChartContent pointsChart(const icfdataplanning_v1& ranking) {
    const std::vector<RankingEntry> entries = rankingEntries(ranking);
    ChartContent content = byRelease(entries, RankingCharts::tr("Points"));
    ChartSeries series{RankingCharts::tr("Points"), {}, ChartSeries::Form::LineAndPoints, 1};
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].points.value_or(0) > 0)
            series.points.emplace_back(static_cast<double>(i), *entries[i].points);
    content.series = {std::move(series)};
    content.emptyText = RankingCharts::tr("The chart begins with the first points.");
    return content;
}

ChartContent penaltyChart(const penaltydataplanning_v1& penalties) {
    std::map<double, DayPenalties> days;
    for (std::size_t i = 0; i < std::min(runCount(penalties), penalties.date.size()); ++i) {
        constexpr double Day = 86400;
        DayPenalties& day = days[std::floor(penalties.date[i].seconds / Day) * Day];
        ++day.runs;
        day.touches += static_cast<double>(entryOrZero(penalties.touches, i));
        day.fifties += static_cast<double>(entryOrZero(penalties.fifties, i));
    }
    ChartContent content;
    content.title = RankingCharts::tr("Touches and missed gates per run");
    content.across = ChartContent::Across::Date;
    content.yTitle = RankingCharts::tr("per run");
    content.yFromZero = true;
    ChartSeries touches{RankingCharts::tr("Touches"), {}, ChartSeries::Form::LineAndPoints, 0};
    ChartSeries fifties{RankingCharts::tr("Missed gates"), {}, ChartSeries::Form::LineAndPoints, 1};
    for (const auto& [date, day] : days) {
        touches.points.emplace_back(date, day.touches / day.runs);
        fifties.points.emplace_back(date, day.fifties / day.runs);
    }
    content.series = {std::move(touches), std::move(fifties)};
    content.emptyText =
        RankingCharts::tr("Take the season's statistics from split files to see penalties here.");
    return content;
}

ChartContent percentChart(const racedataplanning_v3& races) {
    ChartContent content;
    content.title = RankingCharts::tr("Behind the best of the category");
    content.across = ChartContent::Across::Date;
    content.yTitle = RankingCharts::tr("%");
    content.yFromZero = true;
    for (const SeasonRace& race : seasonRaces(races)) {
        if (!race.date || !race.percentBehind)
            continue;
        QString phase = QString::fromStdString(race.phase);
        if (phase.isEmpty())
            phase = RankingCharts::tr("Run");
        auto series = std::ranges::find(content.series, phase, &ChartSeries::name);
        if (series == content.series.end() && content.series.size() < MostPhases) {
            content.series.push_back(
                {phase, {}, ChartSeries::Form::LineAndPoints, content.series.size()});
            series = content.series.end() - 1;
        }
        if (series != content.series.end())
            series->points.emplace_back(race.date->seconds, *race.percentBehind);
    }
    content.emptyText = RankingCharts::tr("Races with a time and a best time stand here.");
    return content;
}

} // namespace kavela::desktop
