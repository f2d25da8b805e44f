#pragma once

#include "desktop/course/course_zoom.h"

#include <Qt>

#include <functional>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;
class QWidget;

namespace kavela::desktop {

/// What mouse and keys do to look at a part of a drawing from near: the wheel zooms at the pointer,
/// + and − in the middle, 0 shows all, and the middle button or the left one with Space drags what
/// is seen. Each event is offered to it first; true where it was its own.
class CourseLens {
public:
    /// `fitted` tells where the whole picture lies in the widget at zoom 1. The widget outlives it.
    CourseLens(QWidget& widget, std::function<QRectF()> fitted);

    [[nodiscard]] const CourseZoom& zoom() const { return m_zoom; }
    /// Where the picture lies in the widget.
    [[nodiscard]] QRectF picture() const { return m_zoom.shown(m_fitted()); }
    /// The part of it that is in sight.
    [[nodiscard]] QRectF seen() const;
    void zoomAt(double times, const QPointF& place);
    void showAll();
    /// Brings a place of the widget into its middle, as far as it can.
    void center(const QPointF& place);
    /// Of the pointer, where it is about to drag what is seen.
    [[nodiscard]] std::optional<Qt::CursorShape> cursor() const;

    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release();
    bool turnWheel(const QWheelEvent& event);
    bool pressKey(const QKeyEvent& event);
    bool releaseKey(const QKeyEvent& event);
    /// The release of Space is told to whom has the focus then.
    void loseFocus() { m_isSpaceDown = false; }

private:
    QWidget& m_widget;
    std::function<QRectF()> m_fitted;
    CourseZoom m_zoom;
    std::optional<QPointF> m_panFrom; ///< where the hand was last that drags what is seen
    bool m_isSpaceDown = false;       ///< a press begins to drag what is seen
};

} // namespace kavela::desktop
