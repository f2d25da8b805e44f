#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/charts/chart_frame.h"

#include <limits>
#include <memory>

class QCPPainter;

namespace kavela::desktop {

class SeriesDrawing;

/// A chart of any series against a number, a date or categories, for windows that are not about one
/// race.
class SeriesChart : public ChartFrame {
    Q_OBJECT

public:
    explicit SeriesChart(QWidget* parent = nullptr);
    ~SeriesChart() override;

    using QWidget::show;
    /// Shows other content. The view and the hidden series stay as long as the series have the same
    /// names.
    void show(ChartContent content);
    [[nodiscard]] const ChartContent& content() const { return m_content; }

    /// What the read-out says at the points nearest to a place along the chart.
    [[nodiscard]] QString readOutAt(double x);

public slots:
    /// Shows the cursor of another chart of the window; a value that is not finite takes it away.
    void showCursorAt(double x);

signals:
    /// A point was clicked, by the place of its series and its own in the content.
    void pointActivated(int series, int index);
    /// The cursor stands at a point of this chart.
    void hoveredAt(double x);
    void hoverEnded();

private:
    [[nodiscard]] QString emptyReason() const override;
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    void moveCursor(int steps) override;
    void leaveCursor() override;
    [[nodiscard]] std::optional<QPointF> cursorPlace() const override;

    void moveCursorTo(double x, const QPointF& at);
    void paintCursor(QCPPainter& painter) const;

    ChartContent m_content;
    std::unique_ptr<SeriesDrawing> m_drawing;
    double m_cursor = std::numeric_limits<double>::quiet_NaN();
};

} // namespace kavela::desktop
