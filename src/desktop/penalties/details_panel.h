#pragma once

#include "desktop/penalties/penalty_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

class ColumnTable;

/// What was noted of penalties in detail: shares of those noted. What was not noted is a row.
class DetailsPanel : public QWidget {
    Q_OBJECT

public:
    explicit DetailsPanel(QWidget* parent = nullptr);

    void show(const SharedFigures& figures);
    using QWidget::show;

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] QString sentence() const;
    /// Why the number in a cell is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

private:
    SharedFigures m_figures;
    ColumnModel<DetailRow> m_rows;
    QLabel* m_sentence;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
