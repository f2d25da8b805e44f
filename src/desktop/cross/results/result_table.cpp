#include "desktop/cross/results/result_table.h"

#include "desktop/cross/heats/boat_looks.h"
#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_text.h"

#include <QHeaderView>

#include <numeric>

namespace kavela::desktop {

namespace {

/// The page scrolls, not the table.
void fitHeight(ColumnTable& table) {
    table.setFixedHeight(table.horizontalHeader()->sizeHint().height() +
                         table.model()->rowCount() * table.verticalHeader()->defaultSectionSize() +
                         2 * table.frameWidth());
}

} // namespace

ColumnTable* resultTable(RowModel* rows, const QString& name) {
    auto* const table = new ColumnTable(*rows, name.toUtf8().constData());
    rows->setParent(table);
    table->setAlternatingRowColors(false); // who goes on stands on a ground of its own
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setIconSize(badgeSize(*table));
    table->stretch({0});
    QObject::connect(table, &ColumnTable::shownChanged, table, [table] { fitHeight(*table); });
    fitHeight(*table);
    return table;
}

QString wholeTableText(const ColumnTable& table) {
    QList<int> rows(table.model()->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return tableAsText(*table.model(), rows, shownColumns(table), clipboardTable());
}

} // namespace kavela::desktop
