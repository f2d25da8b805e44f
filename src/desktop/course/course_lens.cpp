#include "desktop/course/course_lens.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace kavela::desktop {

CourseLens::CourseLens(QWidget& widget, std::function<QRectF()> fitted)
    : m_widget(widget), m_fitted(std::move(fitted)) {}

QRectF CourseLens::seen() const {
    return picture() & QRectF(m_widget.rect()).adjusted(1, 1, -1, -1);
}

void CourseLens::zoomAt(double times, const QPointF& place) {
    m_zoom.zoomAt(times, place, m_fitted());
    m_widget.update();
}

void CourseLens::showAll() {
    m_zoom.showAll();
    m_widget.update();
}

void CourseLens::center(const QPointF& place) {
    m_zoom.pan(QRectF(m_widget.rect()).center() - place, m_fitted());
    m_widget.update();
}

std::optional<Qt::CursorShape> CourseLens::cursor() const {
    if (m_panFrom)
        return Qt::ClosedHandCursor;
    return m_isSpaceDown ? std::optional(Qt::OpenHandCursor) : std::nullopt;
}

bool CourseLens::press(const QMouseEvent& event) {
    const bool begins =
        event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && m_isSpaceDown);
    if (begins && !m_panFrom)
        m_panFrom = event.position();
    return m_panFrom.has_value();
}

bool CourseLens::move(const QMouseEvent& event) {
    if (!m_panFrom)
        return false;
    m_zoom.pan(event.position() - *m_panFrom, m_fitted());
    m_panFrom = event.position();
    m_widget.update();
    return true;
}

bool CourseLens::release() {
    return std::exchange(m_panFrom, std::nullopt).has_value();
}

bool CourseLens::turnWheel(const QWheelEvent& event) {
    constexpr double OfANotch = 1.25;
    constexpr double Notch = 120;
    const int turned = event.angleDelta().y();
    if (turned != 0)
        zoomAt(std::pow(OfANotch, turned / Notch), event.position());
    return turned != 0;
}

bool CourseLens::pressKey(const QKeyEvent& event) {
    constexpr double OfAKey = 1.5;
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false; // those are the window's
    const QPointF middle = QRectF(m_widget.rect()).center();
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomAt(OfAKey, middle);
        return true;
    case Qt::Key_Minus:
        zoomAt(1 / OfAKey, middle);
        return true;
    case Qt::Key_0:
        showAll();
        return true;
    case Qt::Key_Space:
        m_isSpaceDown = true;
        return true;
    default:
        return false;
    }
}

bool CourseLens::releaseKey(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Space)
        return false;
    m_isSpaceDown = m_isSpaceDown && event.isAutoRepeat();
    return true;
}

} // namespace kavela::desktop
