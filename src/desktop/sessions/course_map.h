#pragma once

#include "boatmotion/session_table.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

namespace kavela::desktop {

/// The way of the boat from above, drawn from the fixes alone: north is up. Its colour tells the
/// speed or the stroke rate. Turns have markers with their values; a click anywhere on the way or
/// on a marker moves the cursor there. The wheel zooms, a drag pans, a double click fits.
class CourseMap : public QWidget {
    Q_OBJECT

public:
    enum class Colouring { Speed, StrokeRate };

    explicit CourseMap(QWidget* parent = nullptr);

    void show(std::shared_ptr<const SessionFigures> figures);
    using QWidget::show;
    void setColouring(Colouring colouring);
    [[nodiscard]] Colouring colouring() const { return m_colouring; }
    /// Zooms back to the whole way.
    void fit();

    /// The place of a turn's marker in the widget; nothing where it has no fix.
    [[nodiscard]] std::optional<QPointF> markerAt(std::size_t turn) const;
    /// The values of a turn for its marker.
    [[nodiscard]] static QString turnText(const rotData& marker);

    [[nodiscard]] QSize minimumSizeHint() const override { return {220, 160}; }

public slots:
    void showCursorAt(double moment);

signals:
    /// The way, or a turn's marker, was clicked at this moment.
    void momentChosen(double moment);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Range {
        double low = 0;
        double high = 0;
    };

    void invalidate();
    void takeGround();
    void takeValues();
    [[nodiscard]] double scale() const; ///< pixels per metre
    [[nodiscard]] QPointF toPixel(double east, double north) const;
    [[nodiscard]] std::optional<std::size_t> turnNear(const QPointF& position) const;
    void paintPicture(QPainter& painter) const;
    void paintWay(QPainter& painter) const;
    void paintMarkers(QPainter& painter) const;
    void paintCursor(QPainter& painter) const;
    void paintScaleBar(QPainter& painter) const;
    void paintNorth(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    std::shared_ptr<const SessionFigures> m_figures;
    Colouring m_colouring = Colouring::Speed;
    QRectF m_ground;                             ///< of the way, in metres east and south
    std::vector<std::optional<double>> m_values; ///< one for each fix
    std::optional<Range> m_range;
    std::optional<double> m_cursor;
    double m_zoom = 1;
    QPointF m_pan;     ///< pixels
    QPixmap m_picture; ///< all but the cursor
    bool m_isStale = true;
    std::optional<QPointF> m_press;
    bool m_isPanning = false;
};

} // namespace kavela::desktop
