#include "desktop/cross/results/result_table.h"

#include "desktop/cross/heats/boat_looks.h"
#include "desktop/shell/tables/table_text.h"
#include "desktop/splitfile/text_table.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

/// As high as its rows: the page scrolls, not the table.
void fitHeight(QTableWidget& table) {
    table.setFixedHeight(table.horizontalHeader()->sizeHint().height() +
                         table.rowCount() * table.verticalHeader()->defaultSectionSize() +
                         2 * table.frameWidth());
}

void alignTitles(QTableWidget& table, int firstNumber) {
    for (int column = 0; column < table.columnCount(); ++column)
        table.horizontalHeaderItem(column)->setTextAlignment(
            (column < firstNumber ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

} // namespace

QTableWidget* resultTable(const QString& name, const QStringList& titles, int firstNumber) {
    QTableWidget* const table = textTable(titles);
    table->setObjectName(name);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setTabKeyNavigation(false);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setIconSize(BadgeSize);
    table->setWordWrap(false);
    table->horizontalHeader()->setStretchLastSection(false);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    alignTitles(*table, firstNumber);
    return table;
}

void fillResults(QTableWidget& table, const std::vector<ResultRow>& rows, int firstNumber) {
    std::vector<QStringList> texts;
    for (const ResultRow& row : rows)
        texts.push_back(row.texts);
    fillTable(table, texts);
    alignTitles(table, firstNumber); // also over what goes with numbers
    for (int row = 0; row < table.rowCount(); ++row) {
        const ResultRow& shown = rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < table.columnCount(); ++column) {
            QTableWidgetItem& item = *table.item(row, column);
            const auto colour = shown.colours.find(column);
            item.setForeground(colour == shown.colours.end() ? QBrush() : QBrush(colour->second));
            item.setBackground(shown.ground.isValid() ? QBrush(shown.ground) : QBrush());
            item.setTextAlignment((column < firstNumber ? Qt::AlignLeft : Qt::AlignRight) |
                                  Qt::AlignVCenter);
        }
        table.item(row, 0)->setIcon(shown.badge);
    }
    fitHeight(table);
}

QString copiedText(const QTableWidget& table, bool onlySelected) {
    QList<int> rows;
    if (onlySelected)
        for (const QModelIndex& index : table.selectionModel()->selectedRows())
            rows.append(index.row());
    std::ranges::sort(rows);
    if (rows.isEmpty()) {
        rows.resize(table.rowCount());
        std::iota(rows.begin(), rows.end(), 0);
    }
    QList<int> columns(table.columnCount());
    std::iota(columns.begin(), columns.end(), 0);
    return tableAsText(*table.model(), rows, columns, clipboardTable());
}

} // namespace kavela::desktop
