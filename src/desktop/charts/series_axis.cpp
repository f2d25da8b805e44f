#include "desktop/charts/series_axis.h"

#include "common/number_text.h"
#include "common/reference_date.h"
#include "desktop/shell/theme.h"

#include <qcustomplot.h>

#include <QDateTime>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double SecondsOfDay = 86400;
constexpr double FirstMoment = -719162 * SecondsOfDay - SecondsFrom1970To2001; ///< 0001-01-01
constexpr double LastMoment = 2932897 * SecondsOfDay - SecondsFrom1970To2001;  ///< 10000-01-01
constexpr double LargestValue = 1e100; ///< far below what the plot can multiply

QDateTime momentOf(double x) {
    return QDateTime::fromMSecsSinceEpoch(std::llround((x + SecondsFrom1970To2001) * 1000),
                                          Qt::UTC);
}

/// Days and times whose ticks stand on whole days, months or minutes.
class DateTicker : public QCPAxisTickerDateTime {
public:
    DateTicker() { setDateTimeSpec(Qt::UTC); }

private:
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override {
        m_format = formatFor(range.size());
        QVector<double> ticks = QCPAxisTickerDateTime::createTickVector(
            tickStep, {range.lower + SecondsFrom1970To2001, range.upper + SecondsFrom1970To2001});
        for (double& tick : ticks)
            tick -= SecondsFrom1970To2001;
        return ticks;
    }

    QString getTickLabel(double tick, const QLocale&, QChar, int) override {
        return isDrawable(ChartContent::Across::Date, tick)
                   ? QLocale::c().toString(momentOf(tick), m_format)
                   : QString();
    }

    static QString formatFor(double seconds) {
        if (seconds > 300 * SecondsOfDay)
            return QStringLiteral("MMM yyyy");
        if (seconds > 4 * SecondsOfDay)
            return QStringLiteral("d MMM");
        return seconds > 3600 ? QStringLiteral("d MMM\nhh:mm") : QStringLiteral("hh:mm:ss");
    }

    QString m_format;
};

/// Names under their places, cut or left out where they would run into each other.
class CategoryTicker : public QCPAxisTicker {
public:
    CategoryTicker(QStringList names, QCustomPlot& plot)
        : m_names(std::move(names)), m_plot(plot) {}

private:
    static constexpr double NarrowestName = 44; // pixels

    [[nodiscard]] double pixels() const {
        return m_plot.axisRect()->width() / m_plot.xAxis->range().size();
    }

    [[nodiscard]] qsizetype step() const {
        const double each = pixels();
        return each >= NarrowestName || !(each > 0)
                   ? 1
                   : static_cast<qsizetype>(NarrowestName / each) + 1;
    }

    QVector<double> createTickVector(double, const QCPRange&) override {
        QVector<double> places;
        for (qsizetype i = 0; i < m_names.size(); i += step())
            places.append(static_cast<double>(i));
        return places;
    }

    QVector<double> createSubTickVector(int, const QVector<double>&) override { return {}; }

    QString getTickLabel(double tick, const QLocale&, QChar, int) override {
        const double room = pixels() * static_cast<double>(step()) - theme::Spacing;
        const QFontMetrics metrics(m_plot.xAxis->tickLabelFont());
        QStringList lines = m_names.value(static_cast<qsizetype>(tick)).split('\n');
        for (QString& line : lines)
            line = metrics.elidedText(line, Qt::ElideRight, static_cast<int>(room));
        lines.removeAll(QString()); // the plot paints nothing but lines into a picture of no width
        return lines.join('\n');
    }

    QStringList m_names;
    QCustomPlot& m_plot;
};

/// Ticks at whole numbers.
class WholeTicker : public QCPAxisTicker {
private:
    double getTickStep(const QCPRange& range) override {
        const double step = QCPAxisTicker::getTickStep(range);
        return step < 1 ? 1 : step == std::floor(step) ? step : 2 * step;
    }

    int getSubTickCount(double) override { return 0; }
};

} // namespace

bool isDrawable(ChartContent::Across across, double x) {
    return across == ChartContent::Across::Date ? x >= FirstMoment && x < LastMoment
                                                : isDrawable(x);
}

bool isDrawable(double y) {
    return std::abs(y) < LargestValue; // also false for what is no number
}

QString placeText(const ChartContent& content, double x) {
    if (content.across == ChartContent::Across::Category)
        return content.categories.value(static_cast<qsizetype>(std::round(x))).replace('\n', ' ');
    if (content.across == ChartContent::Across::Number || !isDrawable(content.across, x))
        return valueText(x);
    const QDateTime moment = momentOf(x);
    const QTime time = moment.time();
    const char* const format = time.msecsSinceStartOfDay() == 0 ? "yyyy-MM-dd"
                               : time.second() == 0             ? "yyyy-MM-dd hh:mm"
                                                                : "yyyy-MM-dd hh:mm:ss";
    return moment.toString(format);
}

QString valueText(double value) {
    constexpr double Largest = 1e12; // longer numbers are read as powers
    const double size = std::abs(value);
    if (!(size < Largest))
        return QString::fromStdString(shortestText(value));
    const double parts = size >= 1000 ? 10 : size >= 10 ? 100 : 1000;
    const double rounded = std::round(value * parts) / parts;
    return QString::fromStdString(plainText(rounded == 0 ? 0 : rounded));
}

namespace {

void showAcross(QCustomPlot& plot, const ChartContent& content) {
    plot.xAxis->setLabel(content.xTitle);
    switch (content.across) {
    case ChartContent::Across::Number:
        plot.xAxis->setTicker(QSharedPointer<QCPAxisTicker>::create());
        break;
    case ChartContent::Across::Date:
        plot.xAxis->setTicker(QSharedPointer<DateTicker>::create());
        break;
    case ChartContent::Across::Category:
        plot.xAxis->setTicker(QSharedPointer<CategoryTicker>::create(content.categories, plot));
        plot.xAxis->grid()->setPen(Qt::NoPen);
        break;
    }
}

} // namespace

void showAxes(QCustomPlot& plot, const ChartContent& content) {
    showAcross(plot, content);
    plot.yAxis->setLabel(content.yTitle);
    plot.yAxis->setRangeReversed(content.yReversed);
    if (content.yWhole)
        plot.yAxis->setTicker(QSharedPointer<WholeTicker>::create());
    else
        plot.yAxis->setTicker(QSharedPointer<QCPAxisTicker>::create());
    plot.yAxis2->setLabel(content.rightTitle);
}

} // namespace kavela::desktop
