#include "desktop/charts/selection_band.h"

#include "desktop/shell/theme.h"

#include <QPainter>

namespace kavela::desktop {

SelectionBand::SelectionBand(QWidget* chart) : QWidget(chart) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void SelectionBand::mark(const QRectF& area, const QString& text) {
    m_text = text;
    setGeometry(area.toAlignedRect());
    show();
    raise();
    update();
}

void SelectionBand::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor colour = palette().color(QPalette::Highlight);
    painter.setPen(QPen(colour, 1));
    colour.setAlphaF(0.2F);
    painter.setBrush(colour);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(theme::captionFont(*this));
    painter.drawText(QPointF(theme::SmallSpacing, height() - theme::SmallSpacing), m_text);
}

} // namespace kavela::desktop
