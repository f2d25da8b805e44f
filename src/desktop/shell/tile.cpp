#include "desktop/shell/tile.h"

#include "desktop/shell/theme.h"

#include <QPainter>

namespace kavela::desktop {

namespace {
constexpr int TileWidth = 280;
constexpr int LeastWidth = 222; ///< four beside each other on a small screen
constexpr int TileHeight = 98;
constexpr int IconSize = 40;
constexpr int Radius = 8;
} // namespace

Tile::Tile(const Tool& tool, QWidget* parent) : QAbstractButton(parent), m_purpose(tool.purpose) {
    setText(tool.title);
    setIcon(tool.icon);
    setToolTip(tool.purpose);
    setAccessibleDescription(tool.purpose);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMaximumWidth(TileWidth);
    connect(this, &QAbstractButton::clicked, this, tool.open);
}

QSize Tile::sizeHint() const {
    return {TileWidth, TileHeight};
}

QSize Tile::minimumSizeHint() const {
    return {LeastWidth, TileHeight};
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

    const QRect inner = rect().adjusted(theme::LargeSpacing, theme::LargeSpacing,
                                        -theme::LargeSpacing, -theme::LargeSpacing);
    icon().paint(&painter, QRect(inner.topLeft(), QSize(IconSize, IconSize)));
    const QRect words = inner.adjusted(IconSize + theme::LargeSpacing, 0, 0, 0);
    painter.setFont(theme::titleFont(*this));
    painter.setPen(palette().color(QPalette::WindowText));
    QRect titleBox;
    painter.drawText(words, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text(), &titleBox);
    painter.setFont(theme::captionFont(*this));
    painter.setPen(theme::quietText(palette()));
    painter.drawText(words.adjusted(0, titleBox.height() + theme::SmallSpacing, 0, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, m_purpose);
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
