#pragma once

#include "desktop/shell/edit_order.h"
#include "planning/week_totals.h"

#include <QTableWidget>

namespace kavela::desktop {

class CellDelegate;

/// Totals per training category: what the sessions add up to, beside what was planned. The planned
/// columns of a single week can be typed in.
class TotalsTable : public EditOrder<QTableWidget> {
    Q_OBJECT

public:
    enum Column {
        CategoryColumn,
        SessionsColumn,
        PlannedSessionsColumn,
        QuantityColumn,
        PlannedQuantityColumn,
        DoneColumn,
        ColumnCount
    };

    explicit TotalsTable(QWidget* parent = nullptr);

    void setTotals(const std::vector<CategoryTotal>& totals, bool canBeTyped);

signals:
    void sessionsTyped(std::size_t category, std::int64_t sessions);
    void quantityTyped(std::size_t category, double quantity);

private:
    void addRow(int row, const CategoryTotal& total, bool canBeTyped);
    void take(const QTableWidgetItem& item);

    CellDelegate* m_cells;
    std::vector<CategoryTotal> m_totals;
    bool m_isFilling = false;
};

} // namespace kavela::desktop
