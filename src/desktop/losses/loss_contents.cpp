#include "desktop/losses/loss_contents.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

namespace kavela::desktop {

namespace {

QString contentText(const char* text) {
    return QCoreApplication::translate("Losses", text);
}

IntervalMark markOfSeasonRow(const SeasonLossRow& row) {
    IntervalMark mark;
    mark.label = qtText(row.text);
    mark.name = qtText(row.field) + QStringLiteral(": ") + mark.label;
    mark.group = qtText(row.field);
    mark.value = row.percent;
    mark.hasInterval = row.interval.has_value();
    mark.low = row.interval ? row.interval->low : row.percent;
    mark.high = row.interval ? row.interval->high : row.percent;
    mark.isBold = row.verdict == LossVerdict::Losing;
    mark.told << contentText("%1 s a run").arg(shownSignedSeconds(row.perRun))
              << (row.runs == 1 ? contentText("one run") : contentText("%1 runs").arg(row.runs));
    if (row.interval)
        mark.told << qtText(verdictText(row.verdict));
    mark.fields = {mark.group,
                   mark.label,
                   QString::number(row.runs),
                   csvNumber(row.percent),
                   csvNumber(row.interval ? std::optional(row.interval->low) : std::nullopt),
                   csvNumber(row.interval ? std::optional(row.interval->high) : std::nullopt),
                   csvNumber(row.perRun)};
    return mark;
}

} // namespace

ChartContent paretoContent(const LossState& state) {
    ChartContent content;
    content.across = ChartContent::Across::Category;
    content.title = contentText("Where most was lost");
    content.yTitle = contentText("Seconds lost");
    content.rightTitle = contentText("Of all that was lost, %");
    content.yFromZero = true;
    content.emptyText = nothingToShow(state);
    if (!content.emptyText.isEmpty())
        return content;
    content.emptyText = contentText("No section was slower than the reference's.");
    content.subtitle = paretoSentence(state);
    ChartSeries lost{
        .name = contentText("Lost"), .points = {}, .form = ChartSeries::Form::Bars, .slot = 1};
    ChartSeries share{.name = contentText("Together, %"), .points = {}, .slot = 0, .onRight = true};
    for (const ParetoBar& bar : paretoOf(state.losses())) {
        const auto place = static_cast<double>(content.categories.size());
        content.categories << stretchTitle(state.losses().stretches[bar.stretch]);
        lost.points.emplace_back(place, bar.loss);
        share.points.emplace_back(place, bar.upTo * 100);
    }
    if (!lost.points.empty())
        content.series = {std::move(lost), std::move(share)};
    return content;
}

ChartContent growthContent(const LossState& state) {
    ChartContent content;
    content.title = contentText("The gap along the course");
    content.xTitle = contentText("After section");
    content.yTitle = contentText("Seconds behind, without penalties");
    content.yReversed = true;
    content.emptyText = nothingToShow(state);
    if (!content.emptyText.isEmpty())
        return content;
    const CumulativeGap gap = cumulativeGapOf(state.losses());
    content.subtitle = growthSentence(state, gap);
    ChartSeries line{
        .name = factText(state.facts(), state.row().crew), .points = {}, .isStrong = true};
    for (const CumulativeGap::Point& point : gap.points)
        line.points.emplace_back(static_cast<double>(point.section), point.gap);
    const double last = line.points.back().x();
    content.series.push_back(std::move(line));
    const auto& interests = state.losses().interests;
    for (std::size_t i = 0; i < gap.interests.size(); ++i)
        content.series.push_back(
            {.name = contentText("result %1").arg(shownHundredths(interests[i].time)),
             .points = {{0, gap.interests[i]}, {last, gap.interests[i]}},
             .form = ChartSeries::Form::Line,
             .slot = i + 1});
    return content;
}

IntervalChartContent seasonContent(const SeasonLosses& season, const QString& emptyText) {
    IntervalChartContent content;
    content.title = contentText("Lost by what it is lost in");
    content.yTitle = contentText("Of the reference's time, %");
    content.valueName = contentText("Lost, 90 %");
    content.commonName = contentText("No loss");
    content.emptyText = emptyText;
    content.csvTitles = {contentText("By"),      contentText("What"), contentText("Runs"),
                         contentText("Lost, %"), contentText("Low"),  contentText("High"),
                         contentText("A run, s")};
    for (const SeasonLossRow& row : season.rows)
        content.marks.push_back(markOfSeasonRow(row));
    if (season.train.empty()) {
        content.subtitle = contentText("No row loses time for sure.");
        return content;
    }
    const SeasonLossRow& most = season.rows[season.train.front()];
    content.subtitle =
        contentText("Most for sure: %1 %2, %3 s a run.")
            .arg(qtText(most.field), qtText(most.text), shownSignedSeconds(most.perRun));
    return content;
}

} // namespace kavela::desktop
