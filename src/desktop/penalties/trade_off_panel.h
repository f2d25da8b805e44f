#pragma once

#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;

/// Whether the fast touch more, and how much touching speed pays for.
class TradeOffPanel : public QWidget {
    Q_OBJECT

public:
    explicit TradeOffPanel(QWidget* parent = nullptr);

    void show(const SharedFigures& figures);
    using QWidget::show;

    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    /// "1 % of speed pays for 0.47 touches a run."
    [[nodiscard]] QLabel& breakEven() const { return *m_breakEven; }
    /// Why the number in a cell is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

private:
    [[nodiscard]] std::optional<Reason> whyAtCursor() const;

    SharedFigures m_figures;
    std::optional<double> m_cursor; ///< paddling time at which the chart's cursor stands
    ColumnModel<TradeOffRow, int> m_rows;
    SeriesChart* m_chart;
    QLabel* m_breakEven;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
