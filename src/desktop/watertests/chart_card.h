#pragma once

#include "desktop/watertests/test_charts.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

/// A chart, and below it what it means and what it says in figures.
class ChartCard : public QWidget {
    Q_OBJECT

public:
    explicit ChartCard(QWidget* parent = nullptr);

    void showChart(TestChart chart);
    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }
    /// The figures as plain text, as they stand under the chart.
    [[nodiscard]] const QString& figures() const { return m_plainFigures; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void showFigures();

    SeriesChart* m_chart;
    QLabel* m_help;
    QLabel* m_figures;
    std::vector<ChartSummary> m_summaries;
    QString m_plainFigures;
};

} // namespace kavela::desktop
