#include "desktop/why/why_label.h"

#include "desktop/why/why_popup.h"

#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include <utility>

namespace kavela::desktop {

WhyLabel::WhyLabel(std::function<std::optional<Reason>()> why, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(tr("Alt+click or Shift+F1: why"));
    hide();
    answerWhy(this, [why = std::move(why)](const QPoint&) { return why(); });
}

void WhyLabel::tell(const QString& text) {
    setText(text);
    setAccessibleName(text);
    setVisible(!text.isEmpty());
}

/// A label shows no focus by itself.
void WhyLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void WhyLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void WhyLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

} // namespace kavela::desktop
