#include "desktop/charts/chart_colours.h"
#include "desktop/sessions/colour_scale.h"
#include "desktop/sessions/course_map.h"
#include "desktop/sessions/session_texts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QPainter>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double WayWidth = 5;      // pixels
constexpr double CasingWidth = 8;   // pixels: the edge that sets the way off from the ground
constexpr double MarkerRadius = 9;  // pixels
constexpr double CursorRadius = 7;  // pixels
constexpr double LegendWidth = 110; // pixels
constexpr double LegendHeight = 8;  // pixels
constexpr double MostBar = 120;     // pixels of the scale bar
constexpr double LongestHole = 10;  // s: places further apart are not joined

/// 1, 2 or 5 times a power of ten, not above a length.
double roundLength(double longest) {
    const double power = std::pow(10, std::floor(std::log10(longest)));
    for (const double step : {5.0, 2.0})
        if (step * power <= longest)
            return step * power;
    return power;
}

} // namespace

/// A long session has thousands of fixes; a replay moves the cursor alone.
void CourseMap::paintEvent(QPaintEvent* /*event*/) {
    if (size().isEmpty())
        return; // before the first layout, and there is nothing to paint on
    if (m_isStale) {
        m_picture = QPixmap(size() * devicePixelRatioF());
        m_picture.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&m_picture);
        paintPicture(painter);
        m_isStale = false;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(0, 0, m_picture);
    paintCursor(painter);
}

void CourseMap::paintPicture(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::hairline(palette()));
    painter.setBrush(chartGround(palette()));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setFont(theme::captionFont(*this));
    if (m_figures->track.empty()) {
        painter.setPen(theme::quietText(palette()));
        painter.drawText(rect().adjusted(theme::LargeSpacing, 0, -theme::LargeSpacing, 0),
                         Qt::AlignCenter | Qt::TextWordWrap,
                         tr("There are no position fixes in this session: no map."));
        return;
    }
    paintWay(painter);
    paintMarkers(painter);
    paintScaleBar(painter);
    paintNorth(painter);
    paintLegend(painter);
}

void CourseMap::paintWay(QPainter& painter) const {
    const Track& track = m_figures->track;
    const auto eachStep = [&](const auto& draw) {
        for (std::size_t i = 1; i < track.size(); ++i)
            if (track[i].time - track[i - 1].time <= LongestHole)
                draw(i, toPixel(track[i - 1].east, track[i - 1].north),
                     toPixel(track[i].east, track[i].north));
    };
    const QColor casing = palette().color(QPalette::WindowText);
    painter.setPen(QPen(casing, CasingWidth, Qt::SolidLine, Qt::RoundCap));
    eachStep([&](std::size_t, QPointF from, QPointF to) { painter.drawLine(from, to); });
    eachStep([&](std::size_t i, QPointF from, QPointF to) {
        QColor colour = palette().color(QPalette::Base); // hollow: not known
        if (m_values[i] && m_range) {
            const double span = m_range->high - m_range->low;
            colour = scaleColour(span > 0 ? (*m_values[i] - m_range->low) / span : 0.5);
        }
        painter.setPen(QPen(colour, WayWidth, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(from, to);
    });
}

void CourseMap::paintMarkers(QPainter& painter) const {
    for (std::size_t i = 0; i < m_figures->turns.size(); ++i) {
        const auto marker = markerAt(i);
        if (!marker)
            continue;
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.2));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawEllipse(*marker, MarkerRadius, MarkerRadius);
        painter.drawText(QRectF(*marker - QPointF(MarkerRadius, MarkerRadius),
                                QSizeF(2 * MarkerRadius, 2 * MarkerRadius)),
                         Qt::AlignCenter, QString::number(i + 1));
    }
}

void CourseMap::paintCursor(QPainter& painter) const {
    const auto place = m_cursor ? placeAt(m_figures->track, *m_cursor) : std::nullopt;
    if (!place)
        return;
    const QPointF at = toPixel(place->east, place->north);
    painter.setBrush(QColor(0xD5, 0x5E, 0x00)); // vermilion: on no place of the scale
    painter.setPen(QPen(palette().color(QPalette::Base), 2.5));
    painter.drawEllipse(at, CursorRadius, CursorRadius);
}

void CourseMap::paintScaleBar(QPainter& painter) const {
    const double metres = roundLength(MostBar / scale());
    const double width = metres * scale();
    const QPointF left(theme::LargeSpacing, height() - theme::LargeSpacing);
    const QPointF right = left + QPointF(width, 0);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1.5));
    painter.drawLine(left, right);
    for (const QPointF& end : {left, right})
        painter.drawLine(end, end - QPointF(0, theme::SmallSpacing));
    const QString text = metres >= 1000 ? tr("%1 km").arg(metres / 1000) : tr("%1 m").arg(metres);
    painter.drawText(right + QPointF(theme::Spacing, 1), text);
}

void CourseMap::paintNorth(QPainter& painter) const {
    const QPointF top(width() - theme::LargeSpacing - 4.0, theme::LargeSpacing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawPolygon(
        QPolygonF{top, top + QPointF(5, 14), top + QPointF(0, 10), top + QPointF(-5, 14)});
    painter.setPen(palette().color(QPalette::WindowText));
    const double line = painter.fontMetrics().height();
    painter.drawText(QRectF(top.x() - line, top.y() + 14, 2 * line, line), Qt::AlignCenter,
                     tr("N"));
}

void CourseMap::paintLegend(QPainter& painter) const {
    const bool isSpeed = m_colouring == Colouring::Speed;
    const QString name = isSpeed ? tr("Speed (m/s)") : tr("Stroke rate (1/min)");
    const double lineHeight = painter.fontMetrics().height();
    const double legendWidth = LegendWidth * growthOf(*this);
    const QRectF bar(width() - theme::LargeSpacing - legendWidth,
                     height() - theme::Spacing - lineHeight - LegendHeight, legendWidth,
                     LegendHeight);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(bar.left(), bar.top() - lineHeight - 2, bar.width(), lineHeight),
                     Qt::AlignRight, m_range ? name : name + ": –");
    if (!m_range)
        return;
    QLinearGradient gradient(bar.topLeft(), bar.topRight());
    for (int i = 0; i <= 10; ++i)
        gradient.setColorAt(i / 10.0, scaleColour(i / 10.0));
    painter.fillRect(bar, gradient);
    const QRectF below(bar.left(), bar.bottom() + 1, bar.width(), lineHeight);
    const int decimals = isSpeed ? 1 : 0;
    painter.drawText(below, Qt::AlignLeft, "≤ " + valueText(m_range->low, decimals));
    painter.drawText(below, Qt::AlignRight, "≥ " + valueText(m_range->high, decimals));
}

} // namespace kavela::desktop
