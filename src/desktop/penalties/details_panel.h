#pragma once

#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class IntervalChart;
class Workspace;

/// What was noted of penalties in detail: shares of those noted, as a chart and a table. What was
/// not noted is a row of the table, of all penalties and thus beside the chart's.
class DetailsPanel : public QWidget {
    Q_OBJECT

public:
    explicit DetailsPanel(Workspace& workspace, QWidget* parent = nullptr);

    void show(const SharedFigures& figures);
    using QWidget::show;

    [[nodiscard]] IntervalChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] QString sentence() const;
    /// Why the number in a cell is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

private:
    void makeLayout(Workspace& workspace);
    /// The row of the table that a mark of the chart stands for.
    [[nodiscard]] std::optional<int> placeOf(std::optional<std::size_t> mark) const;

    SharedFigures m_figures;
    ColumnModel<DetailRow> m_rows;
    QLabel* m_sentence;
    IntervalChart* m_chart;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
