#include "desktop/barrier/shaded_line.h"

#include <QPainter>
#include <QPen>

#include <cmath>

namespace kavela::desktop {

void drawShaded(QPainter& painter, const QLineF& line, const QColor& colour, int width,
                Qt::PenStyle style) {
    constexpr QColor Shade{0, 0, 0, 150};
    painter.setPen(QPen(Shade, width + 2));
    painter.drawLine(line);
    painter.setPen(QPen(colour, width, style));
    painter.drawLine(line);
}

/// In the middle of a pixel, else the edge is seen on one side alone.
void drawShadedUpright(QPainter& painter, double x, const QRect& area, const QColor& colour,
                       int width, Qt::PenStyle style) {
    const double middle = std::floor(x) + 0.5;
    drawShaded(painter, QLineF(middle, area.top(), middle, area.bottom()), colour, width, style);
}

} // namespace kavela::desktop
