#pragma once

#include <qcustomplot.h>

#include <QRubberBand>

#include <functional>
#include <optional>

namespace kavela::desktop {

/// Paints anything that no ready-made plottable shows, in its place among the layers.
class PaintedLayer : public QCPLayerable {
public:
    using Paint = std::function<void(QCPPainter&)>;

    PaintedLayer(QCustomPlot& plot, const QString& layer, Paint paint)
        : QCPLayerable(&plot, layer), m_paint(std::move(paint)) {}

private:
    void applyDefaultAntialiasingHint(QCPPainter* painter) const override {
        painter->setAntialiasing(true);
    }
    void draw(QCPPainter* painter) override { m_paint(*painter); }

    Paint m_paint;
};

/// One line of text above a plot, cut where the plot is narrower.
class PlotCaption : public QCPTextElement {
public:
    explicit PlotCaption(QCustomPlot& plot);

private:
    [[nodiscard]] QSize minimumOuterSizeHint() const override;
    void draw(QCPPainter* painter) override;
};

/// The plot of a chart with the mouse and keys that all charts share: the wheel zooms at the
/// cursor, over an axis that axis alone; a left drag zooms into a range, along one axis when it is
/// a narrow one; a middle drag pans; "+", "-" and "0" zoom and fit. Nobody gets lost outside the
/// data.
class ChartPlot : public QCustomPlot {
    Q_OBJECT

public:
    explicit ChartPlot(QWidget* parent);

    /// What fits all data. The view follows, unless the user has chosen one of their own.
    void setLimits(const QCPRange& x, const QCPRange& y);
    /// The same with another measure on a right-hand axis, which moves along with the left one.
    void setLimits(const QCPRange& x, const QCPRange& y, const QCPRange& right);
    /// Pixels that the right-hand axis takes beside the plot.
    [[nodiscard]] int rightAxisWidth() const;
    /// Shows all data again, now and when they change.
    void fit();
    [[nodiscard]] bool isZoomed() const { return m_isZoomed; }

    void setCaptions(const QString& title, const QString& subtitle);
    [[nodiscard]] QString title() const { return m_title->text(); }
    [[nodiscard]] QString subtitle() const { return m_subtitle->text(); }

    /// Takes colours and fonts of the widget over.
    void applyTheme();

    /// The place of the plot's coordinates in the widget.
    [[nodiscard]] QPointF toPixel(double x, double y) const;

signals:
    void hovered(QPointF position);
    void hoverEnded();
    void clicked(QPointF position);
    void doubleClicked(QPointF position);
    /// The palette or the font is another one, after those of the widgets around.
    void themeChanged();
    /// A key that the plot has no use for; ignore the event to pass it on.
    void keyPressed(QKeyEvent* event);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Limits {
        QCPRange x;
        QCPRange y;
        std::optional<QCPRange> right;
    };
    enum Side { NoSide = 0, Across = 1, Left = 2, Right = 4, All = Across | Left | Right };

    void applyLimits(const Limits& limits);
    void noteView();
    void keepInside(QCPAxis& axis, const QCPRange& limits);
    void zoom(double factor, const QPointF& at, int sides);
    void zoomInto(const QRect& area);
    void pan(const QPointF& to);
    /// The axes that the wheel turns at a place; combined sides.
    [[nodiscard]] int axesAt(const QPointF& position) const;
    [[nodiscard]] QRect dragArea(const QPoint& to) const;

    Limits m_limits{{0, 1}, {0, 1}, {}};
    bool m_isZoomed = false;
    std::optional<QPoint> m_press;    ///< where the left button went down
    std::optional<QPointF> m_panFrom; ///< where the middle button last was
    QRubberBand m_band;
    PlotCaption* m_title;
    PlotCaption* m_subtitle;
};

} // namespace kavela::desktop
