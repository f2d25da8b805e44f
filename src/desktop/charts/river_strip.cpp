#include "desktop/charts/river_strip.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::desktop {

namespace {

constexpr double HalfRiver = 20;
constexpr double Swing = 6;        ///< of the river to either side
constexpr double WaveLength = 240; ///< pixels from one bend to the next of its kind
constexpr double PatchHeight = 17;
constexpr double WidestPatch = 24;
constexpr double PoleLength = 7;
constexpr double MarkLength = 6; ///< of the triangle that points against the stream

/// The middle of the river.
double middleOf(const QRectF& place, double x) {
    const double turn = 2 * std::numbers::pi * (x - place.left()) / WaveLength;
    return place.center().y() + Swing * std::sin(turn);
}

void paintStream(QPainter& painter, const QPointF& tip) {
    constexpr double Size = 4;
    painter.drawPolyline(QPolygonF({tip + QPointF(-Size, -Size), tip, tip + QPointF(-Size, Size)}));
}

} // namespace

void paintRiver(QPainter& painter, const QRectF& place, const QPalette& palette) {
    constexpr int Pieces = 160;
    QPolygonF left;
    QPolygonF right;
    for (int i = 0; i <= Pieces; ++i) {
        const double x = place.left() + place.width() * i / Pieces;
        left << QPointF(x, middleOf(place, x) - HalfRiver);
        right << QPointF(x, middleOf(place, x) + HalfRiver);
    }
    QPolygonF water = left;
    for (auto point = right.rbegin(); point != right.rend(); ++point)
        water << *point;
    QColor colour = theme::Accent;
    colour.setAlphaF(theme::isDark(palette) ? 0.28F : 0.13F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(water);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::hairline(palette), 1));
    painter.drawPolyline(left);
    painter.drawPolyline(right);
    painter.setPen(QPen(theme::quietText(palette), 1.4));
    for (const double x : {place.left() + 8, place.right() - 4})
        paintStream(painter, {x, middleOf(place, x)});
}

void paintRiverGate(QPainter& painter, const QRectF& place, const DrawnGate& gate, double room,
                    const QPalette& palette) {
    const QPointF centre(gate.x, middleOf(place, gate.x));
    const QColor edge = gate.isUpstream ? upstreamColour(palette) : theme::quietText(palette);
    painter.setPen(QPen(edge, gate.isUpstream ? 2.6 : 1.2));
    for (const double way : {-1.0, 1.0}) {
        const QPointF pole = centre + QPointF(0, way * PatchHeight / 2);
        painter.drawLine(pole, pole + QPointF(0, way * PoleLength));
    }
    const double width = std::clamp(room - MarkLength - 2, 4.0, WidestPatch);
    const QRectF patch(centre.x() - width / 2, centre.y() - PatchHeight / 2, width, PatchHeight);
    QColor fill = touchColour(palette);
    fill.setAlphaF(static_cast<float>(0.6 * std::clamp(gate.share, 0.0, 1.0)));
    painter.setPen(QPen(edge, gate.isBold ? 2.4 : 1));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(patch, 4, 4);
    painter.setBrush(fill);
    painter.drawRoundedRect(patch, 4, 4);
    if (gate.isUpstream) {
        const QPointF tip(patch.left() - MarkLength, centre.y());
        painter.setPen(Qt::NoPen);
        painter.setBrush(edge);
        painter.drawPolygon(QPolygonF({tip, tip + QPointF(MarkLength, MarkLength * 0.7),
                                       tip + QPointF(MarkLength, -MarkLength * 0.7)}));
    }
    if (!gate.isNumbered)
        return;
    QFont font = painter.font();
    font.setBold(gate.isUpstream || gate.isBold);
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(patch.adjusted(-10, 0, 10, 0), Qt::AlignCenter, gate.number);
    font.setBold(false);
    painter.setFont(font);
}

} // namespace kavela::desktop
