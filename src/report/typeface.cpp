#include "report/typeface.h"

#include "common/display_text.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace kavela::report {

namespace {

constexpr qsizetype LongestMeasured = 200;
constexpr qreal MostSqueezed = 0.86;
constexpr qreal Tolerance = Point / 4; ///< a plain figure may be a hair wider than a bold one

/// Open letters, figures of one width. Without any of these the platform's own choice serves.
QString installedFamily() {
    for (const char* family : {"Open Sans", "Noto Sans", "Segoe UI", "Helvetica Neue",
                               "DejaVu Sans Condensed", "DejaVu Sans", "Liberation Sans"})
        if (QFontDatabase::hasFamily(QString::fromLatin1(family)))
            return QString::fromLatin1(family);
    return {};
}

/// Lays a text out in one line that starts at 0, whichever direction it runs in.
QTextLine onlyLine(QTextLayout& layout) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line;
}

} // namespace

Typeface::Typeface() : m_family(installedFamily()) {}

QFont Typeface::font(const TextStyle& style) const {
    QFont font = m_family.isEmpty() ? QFont() : QFont(m_family);
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.points * Point))));
    font.setWeight(style.isBold ? QFont::DemiBold : QFont::Normal);
    // Letters that are spaced, however little, form no ligatures: a search in the file finds "fi".
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.02);
    return font;
}

qreal Typeface::width(const QString& text, const TextStyle& style) const {
    return QFontMetricsF(font(style)).horizontalAdvance(text);
}

void Typeface::draw(QPainter& painter, const QRectF& place, Qt::Alignment alignment,
                    const QString& text, TextStyle style) const {
    if (text.isEmpty())
        return;
    QString shown = text;
    const qreal room = place.width() + Tolerance;
    if (const qreal wanted = width(text, style); wanted > room) {
        style.points *= std::max(MostSqueezed, room / wanted);
        shown = QFontMetricsF(font(style)).elidedText(text, Qt::ElideRight, room);
    }
    QTextLayout layout(shown, font(style));
    const QTextLine line = onlyLine(layout);
    qreal x = place.left();
    if (alignment & Qt::AlignRight)
        x = place.right() - line.naturalTextWidth();
    else if (alignment & Qt::AlignHCenter)
        x = place.center().x() - line.naturalTextWidth() / 2;
    // Not by the height of the line, which a character from another font would change.
    const qreal baseline = place.center().y() + QFontMetricsF(layout.font()).capHeight() / 2;
    painter.setPen(style.colour);
    layout.draw(&painter, QPointF(x, baseline - line.ascent()));
}

bool isAnyFontInstalled() {
    // Families are always listed: those that stand for the platform's own choice.
    return !QFontInfo(QFont()).family().isEmpty();
}

void drawRule(QPainter& painter, const QRectF& place, qreal y, const QColor& colour, qreal points) {
    painter.fillRect(QRectF(place.left(), y, place.width(), points * Point), colour);
}

QString reportText(std::string_view text) {
    QString line =
        QString::fromStdString(printable(text.substr(0, 4 * LongestMeasured))).simplified();
    if (line.size() > LongestMeasured) {
        line.truncate(line[LongestMeasured - 1].isHighSurrogate() ? LongestMeasured - 1
                                                                  : LongestMeasured);
        line += QChar(0x2026);
    }
    return line;
}

} // namespace kavela::report
