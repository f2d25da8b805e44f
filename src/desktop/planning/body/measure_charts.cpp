#include "desktop/planning/body/measure_charts.h"

#include "desktop/charts/series_axis.h"
#include "planning/calendar_day.h"

#include <QCoreApplication>

#include <functional>
#include <limits>

namespace kavela::desktop {

namespace {

constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();

struct MeasureCharts {
    Q_DECLARE_TR_FUNCTIONS(MeasureCharts)
};

ChartSeries measured(const QString& name, std::size_t slot) {
    ChartSeries series;
    series.name = name;
    series.slot = slot;
    return series;
}

/// What was not measured is passed over; what cannot have been leaves a gap, since it would press
/// all the rest together.
void addMeasured(ChartSeries& series, ReferenceDate date, double value) {
    if (value != 0)
        series.points.emplace_back(date.seconds, value > 0 ? value : NoValue);
}

QString withUnit(double value, const QString& unit) {
    return valueText(value) + ' ' + unit;
}

QString standingWords(AgainstUsual standing) {
    switch (standing) {
    case AgainstUsual::Below:
        return MeasureCharts::tr("below what is usual");
    case AgainstUsual::Within:
        return MeasureCharts::tr("within what is usual");
    case AgainstUsual::Above:
        return MeasureCharts::tr("above what is usual");
    case AgainstUsual::Unknown:
        break;
    }
    return {};
}

} // namespace

ChartContent bodyChart(const yearsplannings_v6& season) {
    ChartContent content;
    content.title = MeasureCharts::tr("Weight and body fat");
    content.across = ChartContent::Across::Date;
    content.rightTitle = MeasureCharts::tr("Body fat (%)");
    ChartSeries weight = measured(MeasureCharts::tr("Weight"), 0);
    ChartSeries fat = measured(MeasureCharts::tr("Body fat"), 1);
    for (const healthdataplanning_v1& entry : season.healthdata) {
        if (!dayOfMoment(entry.date))
            continue;
        addMeasured(weight, entry.date, entry.weight);
        addMeasured(fat, entry.date, entry.fatper);
    }
    fat.onRight = !weight.points.empty();
    content.yTitle =
        fat.onRight ? MeasureCharts::tr("Weight (kg)") : MeasureCharts::tr("Body fat (%)");
    for (ChartSeries& series : {std::ref(weight), std::ref(fat)})
        if (!series.points.empty())
            content.series.push_back(std::move(series));
    content.emptyText =
        MeasureCharts::tr("Add a weight or body fat to see how it goes through the season.");
    return content;
}

ChartContent trendChart(const std::vector<TrendDay>& trend, const QString& title,
                        const QString& unit) {
    ChartContent content;
    content.title = title;
    content.subtitle =
        MeasureCharts::tr("Usual: mean ± one standard deviation of the four weeks before");
    content.across = ChartContent::Across::Date;
    content.yTitle = unit;
    ChartSeries daily = measured(MeasureCharts::tr("Each day"), 0);
    daily.form = ChartSeries::Form::Points;
    ChartSeries mean = measured(MeasureCharts::tr("Seven-day mean"), 1);
    mean.form = ChartSeries::Form::Line;
    ChartBand usual{MeasureCharts::tr("Usual"), {}, {}, {}, 2};
    for (const TrendDay& day : trend) {
        const double x = day.date.seconds;
        daily.points.emplace_back(x, day.value);
        mean.points.emplace_back(x, day.weekMean);
        usual.x.push_back(x);
        usual.low.push_back(day.usual ? day.usual->low : NoValue);
        usual.high.push_back(day.usual ? day.usual->high : NoValue);
    }
    content.series = {std::move(daily), std::move(mean)};
    content.bands = {std::move(usual)};
    return content;
}

QString standingText(const std::vector<TrendDay>& trend, const QString& unit) {
    if (trend.empty())
        return {};
    const TrendDay& last = trend.back();
    const QString week =
        MeasureCharts::tr("Week to %1: mean %2")
            .arg(QString::fromStdString(dayText(last.date)), withUnit(last.weekMean, unit));
    if (!last.usual)
        return MeasureCharts::tr(
                   "%1. What is usual is known after seven measured days of the 28 before.")
            .arg(week);
    return MeasureCharts::tr("%1, %2 (%3 to %4).")
        .arg(week, standingWords(last.standing), valueText(last.usual->low),
             withUnit(last.usual->high, unit));
}

} // namespace kavela::desktop
