#pragma once

#include "desktop/charts/chart_plot.h"
#include "desktop/charts/series_labels.h"

#include <QWidget>

#include <functional>
#include <set>

class QLabel;
class QStackedLayout;

namespace kavela::desktop {

class ReadOut;

/// What every chart has: a plot, its labels, a read-out at the cursor, and words instead when there
/// is nothing to show. It is drawn when it is seen or asked for: a change of what it shows costs
/// nothing on a tab that is not in front.
class ChartFrame : public QWidget {
    Q_OBJECT

public:
    explicit ChartFrame(QWidget* parent);

    /// What the chart says instead of being empty; nothing when it has something to show.
    [[nodiscard]] QString emptyMessage();
    /// The plot as it is drawn for what is shown at present.
    [[nodiscard]] ChartPlot& plot();
    [[nodiscard]] const SeriesLabels& labels() const { return *m_labels; }
    /// The visible range of the visible series as semicolon-separated text.
    [[nodiscard]] QString csv();

    /// Hides a series or shows it again; shows it alone, or all again.
    void toggleSeries(int id);
    void isolateSeries(int id);

protected:
    /// Why there is nothing to show; empty otherwise.
    [[nodiscard]] virtual QString emptyReason() const = 0;
    /// Draws everything afresh into a plot without plottables.
    virtual void fill() = 0;
    [[nodiscard]] virtual QString csvText() const = 0;
    virtual void hoverAt(const QPointF& position) = 0;
    virtual void clickAt(const QPointF& position) = 0;
    virtual void moveCursor(int steps);
    virtual void leaveCursor();

    /// Forgets that series were hidden.
    void showAgain(const std::function<bool(int id)>& which) { std::erase_if(m_hidden, which); }
    void hideSeries(int id) { m_hidden.insert(id); }
    [[nodiscard]] bool isShown(int id) const { return !m_hidden.contains(id); }

    void invalidate();
    [[nodiscard]] ChartPlot& canvas() { return *m_plot; }
    [[nodiscard]] const ChartPlot& canvas() const { return *m_plot; }
    [[nodiscard]] SeriesLabels& seriesLabels() { return *m_labels; }
    [[nodiscard]] ReadOut& readOut() { return *m_readOut; }

    void showEvent(QShowEvent* event) override;

private:
    void connectPlot();
    void refresh();
    void handleKey(QKeyEvent& event);

    std::set<int> m_hidden;
    bool m_isStale = true;

    ChartPlot* m_plot;
    SeriesLabels* m_labels;
    QLabel* m_message;
    QStackedLayout* m_stack;
    ReadOut* m_readOut;
};

} // namespace kavela::desktop
