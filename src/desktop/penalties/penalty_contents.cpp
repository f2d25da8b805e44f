#include "desktop/penalties/penalty_contents.h"

#include "common/text.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/penalties/figure_cells.h"
#include "desktop/shell/qt_text.h"
#include "performance/penalty_words.h"

#include <QCoreApplication>

#include <array>

namespace kavela::desktop {

namespace {

constexpr double Hundredfold = 100;

QString tr(const char* text) {
    return QCoreApplication::translate("PenaltiesWindow", text);
}

QString touchedText(const RateOf& touches) {
    return tr("%1 of %2 touched").arg(touches.count).arg(touches.of);
}

/// What all charts of rates have alike.
IntervalChartContent emptyRates() {
    IntervalChartContent content;
    content.yTitle = tr("Touched, %");
    content.valueName = tr("Ranked rate, 90 %");
    content.bareName = tr("Touched");
    content.commonName = tr("All in common");
    content.emptyText = tr("No run that is asked for has its penalties by gate. Enter them for "
                           "each gate to see where they happen.");
    return content;
}

IntervalMark markOf(const ShrunkRate& shrunk, const std::optional<RateOf>& touches) {
    IntervalMark mark;
    mark.value = Hundredfold * shrunk.rate;
    mark.low = Hundredfold * shrunk.interval.low;
    mark.high = Hundredfold * shrunk.interval.high;
    if (touches) {
        mark.bare = Hundredfold * touches->rate;
        mark.told << touchedText(*touches);
    }
    return mark;
}

QStringList rateFields(const ShrunkRate& shrunk, const std::optional<RateOf>& touches,
                       const std::optional<RateOf>& missed) {
    QStringList fields;
    fields << (touches ? QString::number(touches->of) : QString())
           << (touches ? QString::number(touches->count) : QString())
           << (missed ? QString::number(missed->count) : QString())
           << csvNumber(touches ? std::optional(touches->rate) : std::nullopt)
           << csvNumber(shrunk.rate) << csvNumber(shrunk.interval.low)
           << csvNumber(shrunk.interval.high) << csvNumber(shrunk.above);
    return fields;
}

QStringList rateTitles() {
    return {tr("Passages"),    tr("Touches"), tr("Missed"), tr("Touch rate"),
            tr("Ranked rate"), tr("Low"),     tr("High"),   tr("Above")};
}

IntervalMark markOf(const GateOnCourse& gate) {
    IntervalMark mark = markOf(gate.shrunk, gate.touches);
    mark.label = QString::number(gate.gate);
    mark.name = (gate.isUpstream ? tr("Gate %1, upstream") : tr("Gate %1")).arg(gate.gate);
    mark.isUpstream = gate.isUpstream;
    mark.isBold = gate.isBold;
    mark.share = gate.share;
    mark.section = gate.section;
    if (gate.missed && gate.missed->count > 0)
        mark.told << tr("%1 missed").arg(gate.missed->count);
    if (gate.isBold)
        mark.told << tr("stands out");
    mark.fields = QStringList{QString::number(gate.gate), QString::number(gate.isUpstream ? 1 : 0),
                              gate.section ? QString::number(*gate.section) : QString()} +
                  rateFields(gate.shrunk, gate.touches, gate.missed);
    return mark;
}

IntervalMark markOf(const DetailRow& row) {
    IntervalMark mark;
    mark.label = qtText(detailText(row));
    mark.group = detailFieldText(row.field);
    mark.name = mark.group + QStringLiteral(": ") + mark.label;
    mark.value = Hundredfold * row.share.rate;
    mark.low = Hundredfold * row.share.interval.low;
    mark.high = Hundredfold * row.share.interval.high;
    mark.told << tr("%1 of %2").arg(row.share.count).arg(row.share.of);
    mark.fields = {mark.group,
                   mark.label,
                   QString::number(row.share.count),
                   QString::number(row.share.of),
                   csvNumber(row.share.rate),
                   csvNumber(row.share.interval.low),
                   csvNumber(row.share.interval.high)};
    return mark;
}

} // namespace

QString titleOf(RateBy by) {
    static const std::array<const char*, 10> Titles{KAVELA_TEXT("by gate"),
                                                    KAVELA_TEXT("by type of gate"),
                                                    KAVELA_TEXT("by tenth of the course"),
                                                    KAVELA_TEXT("by section"),
                                                    KAVELA_TEXT("by crew"),
                                                    KAVELA_TEXT("by category"),
                                                    KAVELA_TEXT("by phase"),
                                                    KAVELA_TEXT("by race"),
                                                    KAVELA_TEXT("by month"),
                                                    KAVELA_TEXT("by hand")};
    return tr(Titles[static_cast<std::size_t>(by)]);
}

QString rowTitleOf(RateBy by) {
    static const std::array<const char*, 10> Titles{
        "Gate",  "Type", KAVELA_TEXT("Tenth"), "Section", "Crew", "Category", "Phase", "Race",
        "Month", "Hand"};
    return tr(Titles[static_cast<std::size_t>(by)]);
}

QString nameOf(const RateRow& row) {
    return row.label.empty() ? tr("(not given)") : qtText(row.label);
}

IntervalChartContent courseContent(const CourseOfRates& course) {
    IntervalChartContent content = emptyRates();
    content.title = tr("%1: touches at the gates").arg(qtText(course.label));
    content.subtitle = shownWords(wordsOf(course));
    content.xTitle = tr("Gates in order; ◀ upstream");
    content.isCourse = true;
    content.common = Hundredfold * course.common;
    content.csvTitles = QStringList{tr("Gate"), tr("Upstream"), tr("Section")} + rateTitles();
    for (const GateOnCourse& gate : course.gates)
        content.marks.push_back(markOf(gate));
    return content;
}

IntervalChartContent ratesContent(const PenaltyRates& rates) {
    IntervalChartContent content = emptyRates();
    const RateChart chart = rateChart(rates, MostRanked);
    content.title = tr("Touches %1").arg(titleOf(rates.by));
    content.subtitle = shownWords(wordsOf(rates));
    content.xTitle = rowTitleOf(rates.by);
    if (chart.leftOut > 0)
        content.xTitle += tr(" (the highest %1, %2 more in the table)")
                              .arg(chart.marks.size())
                              .arg(chart.leftOut);
    content.common = Hundredfold * chart.common;
    content.csvTitles = QStringList(rowTitleOf(rates.by)) + rateTitles();
    for (std::size_t i = 0; i < chart.marks.size(); ++i) {
        const RateRow& row = rates.rows[i];
        IntervalMark mark = markOf(row.shrunk, row.touches);
        mark.label = nameOf(row);
        mark.name = nameOf(row);
        mark.isBold = row.standsOut();
        mark.isUpstream = rates.by == RateBy::Type && row.key == "up";
        mark.fields = QStringList(nameOf(row)) + rateFields(row.shrunk, row.touches, row.missed);
        content.marks.push_back(std::move(mark));
    }
    return content;
}

QString detailFieldText(std::string_view field) {
    QString text = qtText(field);
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

IntervalChartContent detailsContent(const std::vector<DetailRow>& rows, const QString& emptyText) {
    IntervalChartContent content;
    content.title = tr("What was noted of penalties");
    content.yTitle = tr("Of those noted, %");
    content.valueName = tr("Share, 90 %");
    content.emptyText = emptyText;
    content.csvTitles = {tr("What"),  tr("Noted as"), tr("Penalties"), tr("Of"),
                         tr("Share"), tr("Low"),      tr("High")};
    const DetailRow* most = nullptr;
    for (const DetailRow& row : rows) {
        if (!row.code)
            continue;
        if (!most || row.share.rate > most->share.rate)
            most = &row;
        content.marks.push_back(markOf(row));
    }
    if (most)
        content.subtitle = tr("Most of one kind: %1 %2, %3 of %4 noted.")
                               .arg(detailFieldText(most->field), qtText(detailText(*most)))
                               .arg(most->share.count)
                               .arg(most->share.of);
    return content;
}

QString thirdText(int third) {
    return third == 1 ? tr("fastest third") : third == 2 ? tr("middle third") : tr("slowest third");
}

ChartContent tradeOffContent(const TradeOff& tradeOff) {
    const TradeOffChart chart = tradeOffChart(tradeOff);
    ChartContent content;
    content.title = tr("Risk and speed");
    content.subtitle = shownWords(wordsOf(tradeOff));
    content.xTitle = tr("Paddling time, % of the group's median");
    content.yTitle = tr("Touches a run");
    content.yFromZero = true;
    content.emptyText = shownWords(wordsOf(tradeOff));
    ChartSeries touches{.name = tr("Touches"), .points = {}, .slot = 0, .isStrong = true};
    ChartBand band{.name = tr("90 %"), .x = {}, .low = {}, .high = {}, .slot = 0};
    for (const TradeOffPoint& point : chart.points) {
        touches.points.emplace_back(point.paddling, point.touches);
        band.x.push_back(point.paddling);
        band.low.push_back(point.interval.low);
        band.high.push_back(point.interval.high);
    }
    content.series.push_back(std::move(touches));
    if (chart.points.size() > 1)
        content.bands.push_back(std::move(band));
    ChartSeries equal{.name = tr("Equally fast in all"),
                      .points = {},
                      .form = ChartSeries::Form::Line,
                      .slot = 1};
    for (const auto& [paddling, height] : chart.equalLine)
        equal.points.emplace_back(paddling, height);
    if (chart.points.size() > 1)
        content.series.push_back(std::move(equal));
    return content;
}

} // namespace kavela::desktop
