#include "report/legend.h"

#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>

namespace kavela::report {

namespace {

constexpr qreal LegendLineHeight = 12 * Point;
constexpr qreal SwatchWidth = 13 * Point;
constexpr qreal SwatchHeight = 7 * Point;
constexpr qreal Gap = 5 * Point;

/// Writes a text at the left of what is left of a line, and takes its width off.
void write(QPainter& painter, QRectF& line, const Typeface& typeface, const QString& text) {
    typeface.draw(painter, line, Qt::AlignLeft, text, Caption);
    line.setLeft(line.left() + typeface.width(text, Caption) + Gap);
}

void paintSwatches(QPainter& painter, QRectF& line, ColourScale scale) {
    for (int band = static_cast<int>(Band::Fastest); band <= static_cast<int>(Band::Band10);
         ++band) {
        const QRectF swatch(line.left(), line.center().y() - SwatchHeight / 2, SwatchWidth,
                            SwatchHeight);
        const std::optional<Colour> colour = bandColour(static_cast<Band>(band), scale);
        painter.fillRect(swatch, onPaper(colour.value_or(NamedWhite)));
        painter.setPen(QPen(Rule, 0.4 * Point));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(swatch);
        line.setLeft(swatch.right());
    }
    line.setLeft(line.left() + Gap);
}

/// What stands around the swatches, or alone where cells are not tinted.
struct ScaleWords {
    QString front;
    QString back;
};

ScaleWords scaleWords(const ReportTable& table) {
    const bool isBlue = table.scale == ColourScale::BlueOrange;
    const QString best = isBlue ? said("blue") : said("green");
    const QString other = isBlue ? said("orange") : said("red");
    if (table.isTinted)
        return {said("fastest*, %1").arg(best),
                said("%1, slowest, by tenths of the column").arg(other)};
    return {said("* best of its column, in %1; all others in %2").arg(best, other), {}};
}

qreal scaleWidth(const ReportTable& table, const Typeface& typeface) {
    const ScaleWords words = scaleWords(table);
    const qreal front = typeface.width(words.front, Caption) + Gap;
    if (!table.isTinted)
        return front;
    constexpr int Swatches = static_cast<int>(Band::Band10) - static_cast<int>(Band::Fastest) + 1;
    return front + Swatches * SwatchWidth + Gap + typeface.width(words.back, Caption) + Gap;
}

bool fitsOneLine(const ReportTable& table, const Typeface& typeface, qreal width) {
    constexpr qreal Between = 12 * Point;
    return scaleWidth(table, typeface) + Between + typeface.width(table.note, Caption) <= width;
}

} // namespace

qreal legendHeight(const ReportTable& table, const Typeface& typeface, qreal width) {
    return fitsOneLine(table, typeface, width) ? LegendLineHeight : 2 * LegendLineHeight;
}

void paintLegend(QPainter& painter, const QRectF& place, const ReportTable& table,
                 const Typeface& typeface) {
    const bool isOneLine = fitsOneLine(table, typeface, place.width());
    const ScaleWords words = scaleWords(table);
    QRectF line = place;
    line.setHeight(LegendLineHeight);
    write(painter, line, typeface, words.front);
    if (table.isTinted) {
        paintSwatches(painter, line, table.scale);
        write(painter, line, typeface, words.back);
    }
    if (!isOneLine)
        line = {place.left(), line.bottom(), place.width(), LegendLineHeight};
    typeface.draw(painter, line, isOneLine ? Qt::AlignRight : Qt::AlignLeft, table.note, Caption);
}

} // namespace kavela::report
