#include "desktop/planning/plan/totals_table.h"

#include "desktop/shell/cell_delegate.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"

#include <QHeaderView>

namespace kavela::desktop {

namespace {

constexpr double Behind = 90; ///< percent of the plan
constexpr double Beyond = 110;
constexpr double MostSessions = 999;
constexpr double MostQuantity = 1e6; ///< in whatever unit

QString numberText(double number) {
    return number == 0 ? QString() : shownNumbers(QString::number(number, 'g', 8));
}

/// Says in sign and number how much of the plan is in the sessions.
QString doneText(const CategoryTotal& total) {
    if (total.plannedQuantity <= 0)
        return total.quantity > 0 ? TotalsTable::tr("not planned") : QString();
    const double percent = total.percentDone();
    const QString mark = percent < Behind ? "▼ " : percent > Beyond ? "▲ " : "";
    return mark + shownNumber(percent, 0) + " %";
}

} // namespace

TotalsTable::TotalsTable(QWidget* parent) : EditOrder(parent), m_cells(new CellDelegate(*this)) {
    setColumnCount(ColumnCount);
    setHorizontalHeaderLabels({tr("Category"), tr("Sessions"), tr("planned"), tr("Quantity"),
                               tr("planned"), tr("In the sessions")});
    horizontalHeaderItem(QuantityColumn)
        ->setToolTip(tr("What the sessions add up to, in the unit that they are written in"));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::SmallSpacing);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    horizontalHeaderItem(CategoryColumn)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(CategoryColumn, QHeaderView::Stretch);
    setShowGrid(false);
    setAlternatingRowColors(true);
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
        if (!m_isFilling)
            take(*item);
    });
}

void TotalsTable::setTotals(const std::vector<CategoryTotal>& totals, bool canBeTyped) {
    m_totals = totals;
    m_isFilling = true;
    setRowCount(static_cast<int>(totals.size()));
    for (std::size_t i = 0; i < totals.size(); ++i)
        addRow(static_cast<int>(i), totals[i], canBeTyped);
    m_isFilling = false;
}

void TotalsTable::addRow(int row, const CategoryTotal& total, bool canBeTyped) {
    const auto put = [&](Column column, const QString& text) {
        auto* entry = new QTableWidgetItem(text);
        const bool isPlanned = column == PlannedSessionsColumn || column == PlannedQuantityColumn;
        if (!canBeTyped || !isPlanned)
            entry->setFlags(entry->flags() & ~Qt::ItemIsEditable);
        if (column != CategoryColumn)
            entry->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setItem(row, column, entry);
    };
    put(CategoryColumn, QString::fromStdString(total.category));
    put(SessionsColumn, numberText(static_cast<double>(total.sessions)));
    put(PlannedSessionsColumn,
        total.plannedSessions == 0 ? QString() : QString::number(total.plannedSessions));
    put(QuantityColumn, numberText(total.quantity));
    put(PlannedQuantityColumn, numberText(total.plannedQuantity));
    put(DoneColumn, doneText(total));
}

void TotalsTable::take(const QTableWidgetItem& item) {
    const auto category = static_cast<std::size_t>(item.row());
    try {
        if (item.column() == PlannedSessionsColumn)
            emit sessionsTyped(category, typedWholeOrNone(item.text(), {0, MostSessions, {}}));
        else
            emit quantityTyped(category, typedRealOrNone(item.text(), {0, MostQuantity, {}}));
    } catch (const RefusedEntry& refusal) {
        m_cells->refuse(refusal.reason());
        setTotals(m_totals, true);
    }
}

} // namespace kavela::desktop
