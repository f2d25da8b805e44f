#include "report/season_drawing.h"

#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace kavela::report {

namespace {

constexpr qreal SeasonScaleWidth = 30 * Point;
constexpr qreal SeasonFootHeight = 14 * Point;
constexpr qreal SeasonMark = 2.6 * Point;
constexpr qreal PlaceRowHeight = 11 * Point;
constexpr qreal PlaceHeadHeight = 12 * Point;
constexpr qreal PlaceNameWidth = 120 * Point;
constexpr qreal PlaceNumberWidth = 34 * Point;

/// Percent from 0 at the bottom of a place.
class PercentScale {
public:
    PercentScale(const QRectF& plot, double highest) : m_plot(plot) {
        constexpr double HighestDrawn = 1000; // beyond that a time is a fault of the file
        const double most = std::isfinite(highest) ? std::min(highest, HighestDrawn) : HighestDrawn;
        constexpr std::array<double, 3> Round{1, 2, 5};
        constexpr double Steps = 4;
        for (double power = 0.1; m_step <= 0; power *= 10)
            for (const double round : Round)
                if (m_step <= 0 && Steps * round * power >= most)
                    m_step = round * power;
        m_top = std::max(m_step, std::ceil(most / m_step) * m_step);
    }

    [[nodiscard]] qreal at(double percent) const {
        return m_plot.bottom() - m_plot.height() * std::clamp(percent / m_top, 0.0, 1.0);
    }

    void paint(QPainter& painter, const Typeface& typeface) const {
        for (double value = 0; value <= m_top + m_step / 2; value += m_step) {
            drawRule(painter, m_plot, at(value), Rule, 0.3);
            typeface.draw(painter,
                          {m_plot.left() - SeasonScaleWidth, at(value) - 6 * Point,
                           SeasonScaleWidth - 4 * Point, 12 * Point},
                          Qt::AlignRight, QString::number(value, 'g', 3) + QStringLiteral(" %"),
                          Caption);
        }
    }

private:
    QRectF m_plot;
    double m_step = 0;
    double m_top = 1;
};

void paintPhaseMark(QPainter& painter, const QPointF& at, std::string_view phase) {
    painter.setPen(QPen(Accent, 0.6 * Point));
    painter.setBrush(phase == "Final" ? Accent : phase == "Semifinal" ? AccentLight : Qt::white);
    if (phase == "Final") {
        painter.drawRect(
            QRectF(at.x() - SeasonMark, at.y() - SeasonMark, 2 * SeasonMark, 2 * SeasonMark));
    } else if (phase == "Semifinal") {
        const QPolygonF triangle{{at.x(), at.y() - SeasonMark},
                                 {at.x() + SeasonMark, at.y() + SeasonMark},
                                 {at.x() - SeasonMark, at.y() + SeasonMark}};
        painter.drawPolygon(triangle);
    } else {
        painter.drawEllipse(at, SeasonMark, SeasonMark);
    }
}

std::vector<ProgressionPoint> drawnPoints(const ProgressionChart& chart) {
    std::vector<ProgressionPoint> points;
    for (const ProgressionPoint& point : chart.points)
        if (!point.isMissed && std::isfinite(point.percent))
            points.push_back(point);
    return points;
}

void paintLevel(QPainter& painter, const QRectF& plot, qreal y, const QString& text,
                const Typeface& typeface) {
    painter.setPen(QPen(Quiet, 0.6 * Point, Qt::DashLine));
    painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    typeface.draw(painter, {plot.right() - 150 * Point, y - 11 * Point, 150 * Point, 10 * Point},
                  Qt::AlignRight, text, Caption);
}

/// Marks where a year begins.
void paintYear(QPainter& painter, const QRectF& plot, qreal x, std::int64_t year,
               const Typeface& typeface) {
    painter.setPen(QPen(Rule, 0.3 * Point));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    typeface.draw(painter, {x + 2 * Point, plot.bottom() + 2 * Point, 40 * Point, SeasonFootHeight},
                  Qt::AlignLeft, QString::number(year), Caption);
}

} // namespace

void paintProgression(QPainter& painter, const QRectF& place, const SeasonMember& member,
                      const ProgressionChart& chart, const Typeface& typeface) {
    const std::vector<ProgressionPoint> points = drawnPoints(chart);
    if (points.empty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plot = place.adjusted(SeasonScaleWidth, 4 * Point, -2 * Point, -SeasonFootHeight);
    double most = chart.medalLine.value_or(0);
    for (const ProgressionPoint& point : points)
        most = std::max(most, point.percent);
    const PercentScale scale(plot, most);
    scale.paint(painter, typeface);
    const qreal apart = plot.width() / static_cast<qreal>(points.size());
    std::int64_t year = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const RaceResult& race = member.races[points[i].race];
        if (i == 0 || race.year != year)
            paintYear(painter, plot, plot.left() + apart * static_cast<qreal>(i), race.year,
                      typeface);
        year = race.year;
    }
    if (chart.medalLine)
        paintLevel(painter, plot, scale.at(*chart.medalLine), said("third of the final, median"),
                   typeface);
    for (std::size_t i = 0; i < points.size(); ++i)
        paintPhaseMark(
            painter,
            {plot.left() + apart * (static_cast<qreal>(i) + 0.5), scale.at(points[i].percent)},
            member.races[points[i].race].phases[points[i].phase].phase);
    painter.restore();
}

void paintBenchmarks(QPainter& painter, const QRectF& place, const BenchmarkChart& chart,
                     const Typeface& typeface) {
    if (chart.boxes.empty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plot = place.adjusted(SeasonScaleWidth, 4 * Point, -2 * Point, -SeasonFootHeight);
    double most = chart.own.value_or(0);
    for (const BenchmarkChart::Box& box : chart.boxes)
        most = std::max(most, box.upperQuartile);
    const PercentScale scale(plot, most);
    scale.paint(painter, typeface);
    const qreal apart = plot.width() / static_cast<qreal>(chart.boxes.size());
    for (std::size_t i = 0; i < chart.boxes.size(); ++i) {
        const BenchmarkChart::Box& box = chart.boxes[i];
        const qreal x = plot.left() + apart * (static_cast<qreal>(i) + 0.5);
        const qreal half = std::min(apart / 4, 14 * Point);
        painter.setPen(QPen(Accent, 0.8 * Point));
        painter.drawLine(QPointF(x, scale.at(box.least)), QPointF(x, scale.at(box.most)));
        painter.setBrush(AccentLight);
        painter.drawRect(QRectF(QPointF(x - half, scale.at(box.upperQuartile)),
                                QPointF(x + half, scale.at(box.lowerQuartile))));
        painter.setPen(QPen(Ink, 1.2 * Point));
        painter.drawLine(QPointF(x - half, scale.at(box.median)),
                         QPointF(x + half, scale.at(box.median)));
        typeface.draw(painter, {x - apart / 2, plot.bottom() + 2 * Point, apart, SeasonFootHeight},
                      Qt::AlignHCenter,
                      said("rank %1: %2 %")
                          .arg(box.rank)
                          .arg(saidNumbers(QString::number(box.median, 'f', 1))),
                      Caption);
    }
    if (chart.own)
        paintLevel(painter, plot, scale.at(*chart.own), said("own median"), typeface);
    painter.restore();
}

qreal placesHeight(const PlacesChart& chart) {
    return PlaceHeadHeight + static_cast<qreal>(chart.rows.size()) * PlaceRowHeight;
}

void paintPlaces(QPainter& painter, const QRectF& place, const PlacesChart& chart,
                 const Typeface& typeface) {
    const qreal cell = (place.width() - PlaceNameWidth - 2 * PlaceNumberWidth) /
                       static_cast<qreal>(std::max<std::size_t>(chart.rows.size(), 1));
    const auto write = [&](qreal x, qreal y, qreal width, Qt::Alignment alignment,
                           const QString& text, const TextStyle& style) {
        typeface.draw(painter, {x, y, width, PlaceRowHeight}, alignment, text, style);
    };
    const qreal numbers = place.left() + PlaceNameWidth;
    const qreal cells = numbers + 2 * PlaceNumberWidth;
    write(numbers, place.top(), PlaceNumberWidth - 4 * Point, Qt::AlignRight, said("Place"),
          HeadStyle);
    write(numbers + PlaceNumberWidth, place.top(), PlaceNumberWidth - 4 * Point, Qt::AlignRight,
          said("Medal"), HeadStyle);
    for (std::size_t i = 0; i < chart.rows.size(); ++i)
        write(cells + cell * static_cast<qreal>(i), place.top(), cell, Qt::AlignHCenter,
              QString::number(i + 1), HeadStyle);
    qreal y = place.top() + PlaceHeadHeight;
    for (const PlacesChart::Row& row : chart.rows) {
        TextStyle style = RowStyle;
        style.isBold = row.isMember;
        write(place.left(), y, PlaceNameWidth - 4 * Point, Qt::AlignLeft, reportText(row.name),
              style);
        write(numbers, y, PlaceNumberWidth - 4 * Point, Qt::AlignRight,
              saidNumbers(QString::number(row.expected, 'f', 1)), style);
        write(numbers + PlaceNumberWidth, y, PlaceNumberWidth - 4 * Point, Qt::AlignRight,
              QStringLiteral("%1 %").arg(100 * row.medal, 0, 'f', 0), style);
        for (std::size_t i = 0; i < row.places.size(); ++i) {
            constexpr double Least = 0.005;
            if (row.places[i] < Least)
                continue;
            QColor colour = Accent;
            colour.setAlphaF(static_cast<float>(0.08 + 0.6 * std::min(1.0, row.places[i])));
            const QRectF box(cells + cell * static_cast<qreal>(i), y, cell, PlaceRowHeight);
            painter.fillRect(box, colour);
            if (cell > 15 * Point)
                typeface.draw(painter, box, Qt::AlignHCenter,
                              QString::number(100 * row.places[i], 'f', 0), Caption);
        }
        y += PlaceRowHeight;
    }
}

} // namespace kavela::report
