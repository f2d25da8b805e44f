#include "desktop/shell/tile.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int TileWidth = 280;
constexpr int LeastWidth = 200; ///< four beside each other on a small screen
constexpr int IconSize = 36;
constexpr int Radius = 8;
constexpr int Margin = 10;
constexpr int FewestLines = 2;
constexpr int MostLines = 3; ///< some languages need more words

/// Beside the icon, of a tile of that width.
int wordsWidth(int width) {
    return width - 2 * Margin - IconSize - Margin - theme::SmallSpacing;
}

/// The text in so many lines of that width, the last of them shortened where more would follow.
QStringList linesOf(const QString& text, const QFont& font, int width, int most) {
    QTextLayout layout(text, font);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() + 1 == most) {
            lines.append(
                QFontMetrics(font).elidedText(text.mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        lines.append(text.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

} // namespace

int Tile::linesFor(const QStringList& purposes, const QWidget& over) {
    constexpr int UsualWidth = 252; // four beside each other in the window as it opens
    const QFont small = theme::captionFont(over);
    const int width = wordsWidth(grown(over, UsualWidth));
    qsizetype lines = FewestLines;
    for (const QString& purpose : purposes)
        lines = std::max(lines, linesOf(purpose, small, width, MostLines).size());
    return static_cast<int>(lines);
}

Tile::Tile(const Tool& tool, int lines, QWidget* parent)
    : QAbstractButton(parent), m_purpose(tool.purpose), m_lines(lines) {
    setText(tool.title);
    setIcon(tool.icon);
    setToolTip(tool.purpose);
    setAccessibleDescription(tool.purpose);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMaximumWidth(grown(*this, TileWidth));
    connect(this, &QAbstractButton::clicked, this, tool.open);
}

QSize Tile::sizeHint() const {
    const int title = QFontMetrics(theme::titleFont(*this)).height();
    const int line = QFontMetrics(theme::captionFont(*this)).height();
    const int words = title + theme::SmallSpacing + m_lines * line;
    return {grown(*this, TileWidth), std::max(words, IconSize) + 2 * Margin};
}

QSize Tile::minimumSizeHint() const {
    return {grown(*this, LeastWidth), sizeHint().height()};
}

void Tile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isMarked = underMouse() || hasFocus();
    painter.setPen(
        QPen(isMarked ? palette().color(QPalette::Highlight) : theme::hairline(palette()),
             isMarked ? 2 : 1));
    painter.setBrush(isDown() ? palette().color(QPalette::AlternateBase)
                              : theme::surface(palette()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Radius, Radius);

    const QRect inner = rect().adjusted(Margin, Margin, -Margin, -Margin);
    icon().paint(&painter, QRect(inner.topLeft(), QSize(IconSize, IconSize)));
    QRect words = inner.adjusted(IconSize + Margin + theme::SmallSpacing, 0, 0, 0);
    painter.setFont(theme::titleFont(*this));
    painter.setPen(palette().color(QPalette::WindowText));
    QRect titleBox;
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text(), &titleBox);
    words.setTop(titleBox.bottom() + theme::SmallSpacing);
    const QFont small = theme::captionFont(*this);
    painter.setFont(small);
    painter.setPen(theme::quietText(palette()));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop,
                     linesOf(m_purpose, small, words.width(), m_lines).join('\n'));
}

void Tile::enterEvent(QEnterEvent* event) {
    update();
    QAbstractButton::enterEvent(event);
}

void Tile::leaveEvent(QEvent* event) {
    update();
    QAbstractButton::leaveEvent(event);
}

} // namespace kavela::desktop
