#pragma once

#include <QWidget>

#include <cstddef>
#include <optional>

class QStackedWidget;
class QTabBar;

namespace kavela::desktop {

class ChartFrame;
class HeatMapChart;
class LossState;
class SeriesChart;
class WaterfallChart;

/// The charts of losses under one bar. They show what the state says, and tell it what is clicked.
class LossChartsPanel : public QWidget {
    Q_OBJECT

public:
    explicit LossChartsPanel(LossState& state, QWidget* parent = nullptr);

    [[nodiscard]] WaterfallChart& waterfall() const { return *m_waterfall; }
    [[nodiscard]] SeriesChart& pareto() const { return *m_pareto; }
    [[nodiscard]] HeatMapChart& heatMap() const { return *m_heatMap; }
    [[nodiscard]] SeriesChart& growth() const { return *m_growth; }

    [[nodiscard]] ChartFrame& currentChart() const;
    /// Shows a chart and gives it the focus.
    void goToChart(int index);
    void fit();
    void askAndSave();

signals:
    /// The stretch of the run is to be played.
    void stretchActivated(std::size_t stretch);
    void savingFailed(const QString& path, const QString& reason);

private:
    void addChart(ChartFrame& chart, const QString& name, const QString& purpose);
    void makeBar();
    void connectCharts();
    void makeAnswers();
    void showState();
    void activate(std::size_t stretch);
    [[nodiscard]] std::optional<std::size_t> stretchOfPareto(int bar) const;

    LossState& m_state;
    QTabBar* m_tabs;
    QStackedWidget* m_stack;
    WaterfallChart* m_waterfall;
    SeriesChart* m_pareto;
    HeatMapChart* m_heatMap;
    SeriesChart* m_growth;
};

} // namespace kavela::desktop
