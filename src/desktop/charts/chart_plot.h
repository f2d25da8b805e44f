#pragma once

#include "desktop/charts/interactive_chart.h"

#include <qcustomplot.h>

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

/// The plot of a chart and the part of it that is seen. Nobody gets lost outside the data.
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

    // As InteractiveChart has them.
    [[nodiscard]] ChartSides sidesAt(const QPointF& position) const;
    void zoom(double factor, const QPointF& at, ChartSides sides);
    void pan(const QPointF& by, ChartSides sides);
    /// Between two corners; along one axis alone where the drag was a narrow one.
    [[nodiscard]] QRectF selectionOf(const QPointF& from, const QPointF& to) const;
    void zoomInto(const QRectF& area);
    /// Moves the view along the chart until it has a place in it.
    void bringIntoView(double x);

    void setCaptions(const QString& title, const QString& subtitle);
    [[nodiscard]] QString title() const { return m_title->text(); }
    [[nodiscard]] QString subtitle() const { return m_subtitle->text(); }

    /// Takes colours and fonts of the widget over.
    void applyTheme();

    /// The place of the plot's coordinates in the widget.
    [[nodiscard]] QPointF toPixel(double x, double y) const;

signals:
    /// The palette or the font is another one, after those of the widgets around.
    void themeChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Limits {
        QCPRange x;
        QCPRange y;
        std::optional<QCPRange> right;
    };

    void applyLimits(const Limits& limits);
    void noteView();
    void keepInside(QCPAxis& axis, const QCPRange& limits);

    Limits m_limits{{0, 1}, {0, 1}, {}};
    bool m_isZoomed = false;
    PlotCaption* m_title;
    PlotCaption* m_subtitle;
};

} // namespace kavela::desktop
