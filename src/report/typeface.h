#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

#include <string_view>

class QPainter;

/// How text and colours look on paper. One accent colour and greys; nothing is told by colour
/// alone.
namespace kavela::report {

/// Pages are laid out in twentieths of a point (1/1440 inch). Fonts get a whole size in pixels that
/// large that hinting and rounding vanish: text measures the same on the screen and on paper.
inline constexpr qreal Point = 20;

inline constexpr QColor Ink(0x1c, 0x21, 0x24);
inline constexpr QColor Quiet(0x6b, 0x75, 0x7b);
inline constexpr QColor Rule(0xd3, 0xd9, 0xdd);
inline constexpr QColor Accent(0x1e, 0x5b, 0x7b);
inline constexpr QColor AccentLight(0x9c, 0xc0, 0xd1);

struct TextStyle {
    qreal points = 8;
    bool isBold = false;
    QColor colour = Ink;
};

/// The family that reports are set in: the best one of those that the computer has. Characters that
/// it lacks come from other fonts. Needs a QGuiApplication.
class Typeface {
public:
    Typeface();

    [[nodiscard]] qreal width(const QString& text, const TextStyle& style) const;

    /// Writes one line into a place, the capitals in the middle of its height. Text that is too
    /// long is set a little smaller, and cut with an ellipsis where that is not enough.
    void draw(QPainter& painter, const QRectF& place, Qt::Alignment alignment, const QString& text,
              TextStyle style) const;

private:
    [[nodiscard]] QFont font(const TextStyle& style) const;

    QString m_family;
};

/// Whether there is a font at all; without one every letter is a box.
[[nodiscard]] bool isAnyFontInstalled();

/// A thin line from the left to the right of a place, at a height.
void drawRule(QPainter& painter, const QRectF& place, qreal y, const QColor& colour,
              qreal points = 0.5);

/// Text of a file for the report: whatever its bytes, one printable line of bearable length.
[[nodiscard]] QString reportText(std::string_view text);

} // namespace kavela::report
