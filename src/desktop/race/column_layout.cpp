#include "desktop/race/column_layout.h"

#include "desktop/race/frozen_table.h"
#include "desktop/race/split_table_model.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// The name of a column in the layout. Sections go by their number, since their titles differ from
/// course to course.
QString columnName(const QAbstractItemModel& model, int column) {
    static const QStringList leading{"name", "phase", "category", "place"};
    static const QStringList closing{"total", "sprint", "real"};
    if (column < SplitTableModel::LeadingColumns)
        return leading[column];
    const auto fromEnd = model.columnCount() - column;
    if (fromEnd <= closing.size())
        return closing[closing.size() - fromEnd];
    return QString::number(column - SplitTableModel::LeadingColumns + 1);
}

bool isHiddenName(const QString& name) {
    return name.startsWith('-');
}

QString bareName(const QString& name) {
    return isHiddenName(name) ? name.mid(1) : name;
}

} // namespace

QList<int> shownColumns(const FrozenTable& table) {
    QList<int> columns;
    const QHeaderView& header = *table.horizontalHeader();
    for (int place = 0; place < header.count(); ++place)
        if (const int column = header.logicalIndex(place); !table.isColumnHidden(column))
            columns.append(column);
    return columns;
}

QStringList columnLayout(const FrozenTable& table) {
    QStringList layout;
    const QHeaderView& header = *table.horizontalHeader();
    for (int place = 0; place < header.count(); ++place) {
        const int column = header.logicalIndex(place);
        const QString name = columnName(*table.model(), column);
        layout.append(table.isColumnHidden(column) ? '-' + name : name);
    }
    return layout;
}

void applyColumnLayout(FrozenTable& table, const QStringList& layout) {
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
    // The leading columns stay in view, so they keep their places.
    std::stable_sort(std::next(order.begin(), SplitTableModel::LeadingColumns), order.end(),
                     [&](int a, int b) { return ranks[a] < ranks[b]; });
    const QSignalBlocker blocker(table); // this is not the coach who moves them
    for (int place = 0; place < order.size(); ++place)
        header.moveSection(header.visualIndex(order[place]), place);
    for (int column = 0; column < header.count(); ++column)
        table.setColumnHidden(column, layout.contains('-' + columnName(*table.model(), column)));
    table.arrange();
}

} // namespace kavela::desktop
