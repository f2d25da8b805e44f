#include "desktop/shell/tables/column_layout.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableView>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString columnName(const QAbstractItemModel& model, int column) {
    const QVariant name = model.headerData(column, Qt::Horizontal, ColumnNameRole);
    return name.isValid() ? name.toString()
                          : model.headerData(column, Qt::Horizontal).toString().replace('\n', ' ');
}

QString bareName(const QString& name) {
    return name.startsWith('-') ? name.mid(1) : name;
}

} // namespace

QList<int> shownColumns(const QTableView& table) {
    QList<int> columns;
    const QHeaderView& header = *table.horizontalHeader();
    for (int place = 0; place < header.count(); ++place)
        if (const int column = header.logicalIndex(place); !table.isColumnHidden(column))
            columns.append(column);
    return columns;
}

QStringList columnLayout(const QTableView& table) {
    QStringList layout;
    const QHeaderView& header = *table.horizontalHeader();
    for (int place = 0; place < header.count(); ++place) {
        const int column = header.logicalIndex(place);
        const QString name = columnName(*table.model(), column);
        layout.append(table.isColumnHidden(column) ? '-' + name : name);
    }
    return layout;
}

void applyColumnLayout(QTableView& table, const QStringList& layout, int fixed) {
    QHeaderView& header = *table.horizontalHeader();
    QStringList names;
    for (const QString& name : layout)
        names.append(bareName(name));
    QList<int> order;
    QList<qsizetype> ranks; // by column
    for (int column = 0; column < header.count(); ++column) {
        order.append(column);
        const auto known = names.indexOf(columnName(*table.model(), column));
        // What the list does not know stays behind the column in front of it.
        ranks.append(known < 0 && column > 0 ? ranks.back() : known);
    }
    std::stable_sort(std::next(order.begin(), fixed), order.end(),
                     [&](int a, int b) { return ranks[a] < ranks[b]; });
    const QSignalBlocker blocker(table); // this is not the coach who moves them
    for (int place = 0; place < order.size(); ++place)
        header.moveSection(header.visualIndex(order[place]), place);
    for (int column = 0; column < header.count(); ++column)
        table.setColumnHidden(column, layout.contains('-' + columnName(*table.model(), column)));
}

} // namespace kavela::desktop
