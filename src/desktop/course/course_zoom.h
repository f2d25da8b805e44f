#pragma once

#include <QPointF>
#include <QRectF>

namespace kavela::desktop {

/// How much larger than it fits a picture is shown, and which part of it. It always covers the
/// place where the whole of it would fit, so that nobody loses it out of sight.
class CourseZoom {
public:
    static constexpr double Most = 16;

    /// 1, where all is shown, to `Most`.
    [[nodiscard]] double factor() const { return m_factor; }
    [[nodiscard]] bool showsAll() const { return m_factor <= 1; }
    /// Where the picture lies that would fit into a place.
    [[nodiscard]] QRectF shown(const QRectF& fitted) const;

    /// Shows it larger by a factor above 0; what is seen at a place stays there as far as it can.
    void zoomAt(double times, const QPointF& place, const QRectF& fitted);
    /// Moves what is seen by so many pixels.
    void pan(const QPointF& way, const QRectF& fitted);
    void showAll();

private:
    void moveTo(const QPointF& topLeft, const QRectF& fitted);

    double m_factor = 1;
    QPointF m_offset; ///< of its corner from where it would fit, of the fitted width
};

} // namespace kavela::desktop
