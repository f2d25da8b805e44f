#pragma once

#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QComboBox;

namespace kavela::desktop {

class ColumnTable;
class IntervalChart;
class Workspace;

/// Rates of touches and missed gates by any grouping, as a chart and a table.
class RatesPanel : public QWidget {
    Q_OBJECT

public:
    RatesPanel(Workspace& workspace, QWidget* parent = nullptr);

    void show(const SharedFigures& figures);
    using QWidget::show;
    [[nodiscard]] RateBy by() const;
    void setBy(RateBy by);

    [[nodiscard]] IntervalChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    /// Why the number in a cell is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

signals:
    void byChanged();

private:
    void connectParts();

    SharedFigures m_figures;
    ColumnModel<RateRow, std::string> m_rows;
    QComboBox* m_by;
    IntervalChart* m_chart;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
