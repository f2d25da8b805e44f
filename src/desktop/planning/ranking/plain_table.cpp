#include "desktop/planning/ranking/plain_table.h"

#include "desktop/shell/edit_order.h"
#include "desktop/shell/theme.h"

#include <QHeaderView>
#include <QTableWidget>

namespace kavela::desktop {

namespace {

void set(QTableWidget& table, int row, int column, const QString& text, Qt::Alignment side) {
    auto* item = table.item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        table.setItem(row, column, item);
    }
    item->setText(text);
    item->setTextAlignment(side | Qt::AlignVCenter);
}

} // namespace

QTableWidget* plainTable(const QStringList& titles) {
    auto* const table = new EditOrder<QTableWidget>;
    table->setColumnCount(static_cast<int>(titles.size()));
    table->setHorizontalHeaderLabels(titles);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + theme::Spacing);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

void setText(QTableWidget& table, int row, int column, const QString& text) {
    set(table, row, column, text, Qt::AlignLeft);
}

void setNumber(QTableWidget& table, int row, int column, const QString& text) {
    set(table, row, column, text, Qt::AlignRight);
}

} // namespace kavela::desktop
