#include "desktop/charts/chart_markers.h"

#include <QPainterPath>

namespace kavela::desktop {

namespace {

using enum MarkerShape;

QPolygonF corners(MarkerShape shape) {
    switch (shape) {
    case Circle:
        return {};
    case Square:
        return QRectF(-2.6, -2.6, 5.2, 5.2);
    case Triangle:
        return {{{0, -3.2}, {3.1, 2.4}, {-3.1, 2.4}}};
    case Diamond:
        return {{{0, -3.4}, {3.4, 0}, {0, 3.4}, {-3.4, 0}}};
    case TriangleDown:
        return {{{0, 3.2}, {-3.1, -2.4}, {3.1, -2.4}}};
    case Pentagon:
        return {{{0, -3.1}, {3, -0.9}, {1.9, 2.6}, {-1.9, 2.6}, {-3, -0.9}}};
    case Plus:
        return {{{-1, -3},
                 {1, -3},
                 {1, -1},
                 {3, -1},
                 {3, 1},
                 {1, 1},
                 {1, 3},
                 {-1, 3},
                 {-1, 1},
                 {-3, 1},
                 {-3, -1},
                 {-1, -1}}};
    }
    return {};
}

/// The outline in a field six units wide, as custom markers are drawn.
QPainterPath outline(MarkerShape shape) {
    QPainterPath path;
    if (shape == Circle) {
        path.addEllipse(QPointF(), 2.9, 2.9);
        return path;
    }
    path.addPolygon(corners(shape));
    path.closeSubpath();
    return path;
}

} // namespace

QCPScatterStyle markerOf(const SeriesStyle& style, double size, bool isFull) {
    constexpr double LineWidth = 1.6;
    QPen pen(style.colour, LineWidth);
    pen.setCosmetic(true);
    return {outline(style.shape), pen, isFull ? QBrush(style.colour) : QBrush(Qt::NoBrush), size};
}

QCPScatterStyle backgroundDot(const QPalette& palette, double size) {
    // A marker without a pen would get that of its graph.
    return {QCPScatterStyle::ssCircle, QPen(Qt::transparent), QBrush(backgroundRuns(palette)),
            size};
}

} // namespace kavela::desktop
