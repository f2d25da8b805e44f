#pragma once

#include <QColor>
#include <QLineF>
#include <QRect>

class QPainter;

namespace kavela::desktop {

/// Draws a line with a dark edge of a pixel on either side, which keeps it seen over light water
/// and dark alike. The edge of a dashed one goes through. `width` in pixels, from 1.
void drawShaded(QPainter& painter, const QLineF& line, const QColor& colour, int width,
                Qt::PenStyle style = Qt::SolidLine);

/// The same upright through a picture, on whole pixels.
void drawShadedUpright(QPainter& painter, double x, const QRect& area, const QColor& colour,
                       int width, Qt::PenStyle style = Qt::SolidLine);

} // namespace kavela::desktop
