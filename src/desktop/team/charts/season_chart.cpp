#include "desktop/team/charts/season_chart.h"

#include "desktop/charts/chart_csv.h"
#include "results/team_records.h"

#include <QCoreApplication>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr double PenaltyShare = 3; ///< the bars take this part of the height at most

struct SeasonChart {
    Q_DECLARE_TR_FUNCTIONS(SeasonChart)
};

const SeasonRun* runOf(const SeasonRace& race, const char* phase) {
    const auto run = std::ranges::find(race.runs, phase, &SeasonRun::phase);
    return run == race.runs.end() ? nullptr : &*run;
}

/// Event and place under each other, and the year where the races are of several.
QStringList namesOf(const std::vector<SeasonRace>& races) {
    QStringList names;
    for (const SeasonRace& race : races) {
        names.append(QString::fromStdString(race.event) + '\n' +
                     QString::fromStdString(race.location));
        if (races.front().year != races.back().year)
            names.back() += '\n' + QString::number(race.year);
    }
    return names;
}

ChartSeries percentLine(const std::vector<SeasonRace>& races, std::size_t phase) {
    ChartSeries line;
    line.name = team::Phases[phase];
    line.slot = phase;
    for (std::size_t i = 0; i < races.size(); ++i)
        if (const SeasonRun* const run = runOf(races[i], team::Phases[phase]); run && run->behind)
            line.points.emplace_back(static_cast<double>(i), *run->behind);
    return line;
}

ChartSeries penaltyBars(const std::vector<SeasonRace>& races, std::size_t phase) {
    ChartSeries bars;
    bars.name = team::Phases[phase];
    bars.form = ChartSeries::Form::Bars;
    bars.slot = phase;
    bars.isFaint = true;
    for (std::size_t i = 0; i < races.size(); ++i)
        if (const SeasonRun* const run = runOf(races[i], team::Phases[phase]))
            bars.points.emplace_back(static_cast<double>(i), static_cast<double>(run->penalty));
    return bars;
}

/// A phase stands in the legend once: its line and its bars have the same colour.
void addSeries(ChartContent& content, const std::vector<SeasonRace>& races) {
    std::vector<ChartSeries> allBars;
    for (std::size_t phase = 0; phase < std::size(team::Phases); ++phase) {
        ChartSeries line = percentLine(races, phase);
        ChartSeries bars = penaltyBars(races, phase);
        if (!line.points.empty()) {
            bars.labelOf = content.series.size();
            bars.name = SeasonChart::tr("%1: penalty (s)").arg(bars.name);
            content.series.push_back(std::move(line));
        }
        if (!bars.points.empty())
            allBars.push_back(std::move(bars));
    }
    const bool hasLines = !content.series.empty();
    for (ChartSeries& bars : allBars) {
        bars.onRight = hasLines;
        content.series.push_back(std::move(bars));
    }
    content.yTitle = hasLines ? SeasonChart::tr("% behind") : SeasonChart::tr("penalty (s)");
    content.rightTitle = hasLines ? SeasonChart::tr("penalty (s)") : QString();
    content.rightHeights = PenaltyShare;
    content.subtitle =
        hasLines ? SeasonChart::tr("Percent behind the fastest as lines, penalty seconds as bars")
                 : SeasonChart::tr("Penalties only; percent behind comes with split files");
}

void addRows(ChartContent& content, const std::vector<SeasonRace>& races) {
    content.rowTitles =
        QStringList{"Year", "Event", "Location", "Phase", "Percent behind", "Penalty", "Position"};
    for (std::size_t i = 0; i < races.size(); ++i)
        for (const SeasonRun& run : races[i].runs) {
            const QString phase = QString::fromStdString(run.phase);
            // The line of the phase, or its bars where it has none.
            const auto shown = std::ranges::find_if(
                content.series, [&](const ChartSeries& series) { return series.name == phase; });
            content.rows.push_back(
                {static_cast<std::size_t>(shown - content.series.begin()),
                 static_cast<double>(i),
                 {QString::number(races[i].year), QString::fromStdString(races[i].event),
                  QString::fromStdString(races[i].location), phase, csvNumber(run.behind),
                  QString::number(run.penalty), QString::number(run.pos)}});
        }
}

} // namespace

ChartContent seasonContent(const QString& title, const std::vector<SeasonRace>& races) {
    ChartContent content;
    content.title = title;
    content.across = ChartContent::Across::Category;
    content.categories = namesOf(races);
    content.yFromZero = true;
    content.emptyText = SeasonChart::tr(
        "Percent behind the fastest stands here once runs are taken over from split files.");
    addSeries(content, races);
    addRows(content, races);
    return content;
}

} // namespace kavela::desktop
