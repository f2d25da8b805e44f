#include "report/legend.h"

#include <QPainter>

namespace kavela::report {

namespace {

constexpr TextStyle Caption{7, false, Quiet};
constexpr qreal SwatchWidth = 13 * Point;
constexpr qreal SwatchHeight = 7 * Point;
constexpr qreal Gap = 5 * Point;

/// Writes a text at the left of what is left of a line, and takes its width off.
void write(QPainter& painter, QRectF& line, const Typeface& typeface, const QString& text) {
    typeface.draw(painter, line, Qt::AlignLeft, text, Caption);
    line.setLeft(line.left() + typeface.width(text, Caption) + Gap);
}

void paintSwatches(QPainter& painter, QRectF& line) {
    for (int band = static_cast<int>(Band::Fastest); band <= static_cast<int>(Band::Band10);
         ++band) {
        const QRectF swatch(line.left(), line.center().y() - SwatchHeight / 2, SwatchWidth,
                            SwatchHeight);
        const std::optional<Colour> colour = bandColour(static_cast<Band>(band));
        painter.fillRect(swatch, onPaper(colour.value_or(NamedWhite)));
        painter.setPen(QPen(Rule, 0.4 * Point));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(swatch);
        line.setLeft(swatch.right());
    }
    line.setLeft(line.left() + Gap);
}

} // namespace

void paintLegend(QPainter& painter, const QRectF& place, const ReportTable& table,
                 const Typeface& typeface) {
    QRectF line = place;
    if (table.isTinted) {
        write(painter, line, typeface, QStringLiteral("fastest*"));
        paintSwatches(painter, line);
        write(painter, line, typeface, QStringLiteral("slowest, by tenths of the column"));
    } else {
        write(painter, line, typeface,
              QStringLiteral("* best of its column, in green; all other times in red"));
    }
    typeface.draw(painter, line, Qt::AlignRight, table.note, Caption);
}

} // namespace kavela::report
