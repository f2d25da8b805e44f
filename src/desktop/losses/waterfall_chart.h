#pragma once

#include "analysis/colouring.h"
#include "desktop/charts/chart_frame.h"
#include "performance/loss_charts.h"

#include <QStringList>

#include <optional>
#include <vector>

class QCPPainter;

namespace kavela::desktop {

class LossState;

/// From the reference's total to the run's own, a bar for each part: what is shown adds up to the
/// hundredth.
class WaterfallChart : public ChartFrame {
    Q_OBJECT

public:
    explicit WaterfallChart(QWidget* parent = nullptr);

    void show(const LossState& state);
    /// Marks the bar of a section, counted from 1.
    void markSection(std::size_t section);
    using QWidget::show;

    /// The bars that are shown: parts of nothing beside the stretches are left out.
    [[nodiscard]] const std::vector<WaterfallBar>& bars() const { return m_bars; }
    /// "Winner", "S5"
    [[nodiscard]] QString titleOf(std::size_t bar) const;
    /// "+1.02"; of a total the total.
    [[nodiscard]] QString valueOf(std::size_t bar) const;
    /// The bar at a place of the plot; of no place that under the cursor of the keys, else the one
    /// that is marked.
    [[nodiscard]] std::optional<std::size_t> barAt(const QPoint& position) const;
    /// Where a bar stands in the plot.
    [[nodiscard]] QRectF rectOf(std::size_t bar) const;

signals:
    /// A stretch of the run was clicked, or Enter pressed on it.
    void stretchActivated(std::size_t stretch);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QString emptyReason() const override { return m_empty; }
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    [[nodiscard]] std::vector<QPointF> stops() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    void leaveCursor() override;
    [[nodiscard]] std::optional<QPointF> cursorPlace() const override;

    void paintBars(QCPPainter& painter) const;
    void paintBar(QCPPainter& painter, std::size_t bar) const;
    void setLimits();
    void activate(std::size_t bar);
    [[nodiscard]] QColor colourOf(const WaterfallBar& bar) const;
    [[nodiscard]] bool isMarked(const WaterfallBar& bar) const;

    std::vector<WaterfallBar> m_bars;
    std::vector<Stretch> m_stretches;
    QString m_empty;
    QString m_title;
    QString m_subtitle;
    QString m_reference;
    QString m_own;
    ColourScale m_scale = ColourScale::GreenRed;
    std::size_t m_section = 0;
    std::optional<std::size_t> m_cursor;
};

} // namespace kavela::desktop
