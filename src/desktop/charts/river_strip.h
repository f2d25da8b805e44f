#pragma once

#include <QPalette>
#include <QRectF>
#include <QString>

class QPainter;

namespace kavela::desktop {

/// A gate as it hangs over the river of a chart.
struct DrawnGate {
    QString number;
    double x = 0; ///< pixels
    bool isUpstream = false;
    bool isBold = false;
    double share = 0;       ///< how strongly it is filled, from 0 to 1
    bool isNumbered = true; ///< there is room for its number
};

/// Pixels that the strip is high.
inline constexpr double RiverHeight = 62;

/// The water, which runs to the right and winds a little.
void paintRiver(QPainter& painter, const QRectF& place, const QPalette& palette);
/// A gate on it, as wide as there is room for one gate.
void paintRiverGate(QPainter& painter, const QRectF& place, const DrawnGate& gate, double room,
                    const QPalette& palette);

} // namespace kavela::desktop
