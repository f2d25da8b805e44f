#include "desktop/course/course_zoom.h"

#include <algorithm>

namespace kavela::desktop {

QRectF CourseZoom::shown(const QRectF& fitted) const {
    return {fitted.topLeft() + m_offset * fitted.width(), fitted.size() * m_factor};
}

void CourseZoom::zoomAt(double times, const QPointF& place, const QRectF& fitted) {
    const QRectF before = shown(fitted);
    m_factor = std::clamp(m_factor * times, 1.0, Most);
    const double grown = m_factor * fitted.width() / std::max(before.width(), 1.0);
    moveTo(place - (place - before.topLeft()) * grown, fitted);
}

void CourseZoom::pan(const QPointF& way, const QRectF& fitted) {
    moveTo(shown(fitted).topLeft() + way, fitted);
}

void CourseZoom::showAll() {
    m_factor = 1;
    m_offset = {};
}

void CourseZoom::moveTo(const QPointF& topLeft, const QRectF& fitted) {
    const double width = std::max(fitted.width(), 1.0);
    const double most = m_factor - 1;
    const QPointF offset = (topLeft - fitted.topLeft()) / width;
    m_offset = {std::clamp(offset.x(), -most, 0.0),
                std::clamp(offset.y(), -most * fitted.height() / width, 0.0)};
}

} // namespace kavela::desktop
