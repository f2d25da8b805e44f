#include "desktop/shell/edit_order.h"

#include <QHeaderView>

namespace kavela::desktop {

namespace {

/// The row above or below, hidden ones left out; invalid at the end.
QModelIndex rowBeside(const QTableView& view, const QModelIndex& index, int way) {
    QModelIndex row = index.siblingAtRow(index.row() + way);
    while (row.isValid() && view.isRowHidden(row.row()))
        row = row.siblingAtRow(row.row() + way);
    return row;
}

QModelIndex rowBeside(const QTreeView& view, const QModelIndex& index, int way) {
    const QModelIndex row = index.siblingAtColumn(0);
    return way > 0 ? view.indexBelow(row) : view.indexAbove(row);
}

QModelIndex firstRow(const QTableView& view) {
    const QModelIndex row = view.model()->index(0, 0, view.rootIndex());
    return row.isValid() && view.isRowHidden(0) ? rowBeside(view, row, 1) : row;
}

QModelIndex firstRow(const QTreeView& view) {
    return view.model()->index(0, 0, view.rootIndex());
}

/// The first cell of a row that can be typed in, from a place among the columns shown on.
QModelIndex typedCellFrom(const QModelIndex& row, const QHeaderView& columns, int visual, int way) {
    for (; visual >= 0 && visual < columns.count(); visual += way) {
        const int column = columns.logicalIndex(visual);
        const QModelIndex cell = row.siblingAtColumn(column);
        const Qt::ItemFlags needed = Qt::ItemIsEditable | Qt::ItemIsEnabled;
        if (!columns.isSectionHidden(column) && (cell.flags() & needed) == needed)
            return cell;
    }
    return {};
}

template <class View>
QModelIndex typedCell(const View& view, const QHeaderView& columns, int way) {
    if (!view.model() || view.editTriggers() == QAbstractItemView::NoEditTriggers)
        return {};
    QModelIndex row = view.currentIndex();
    int from = way > 0 ? 0 : columns.count() - 1;
    if (row.isValid())
        from = columns.visualIndex(row.column()) + way;
    else
        row = firstRow(view);
    while (row.isValid()) {
        if (const QModelIndex cell = typedCellFrom(row, columns, from, way); cell.isValid())
            return cell;
        row = rowBeside(view, row, way);
        from = way > 0 ? 0 : columns.count() - 1;
    }
    return {};
}

} // namespace

QModelIndex typedCellBeside(const QTableView& view, int way) {
    return typedCell(view, *view.horizontalHeader(), way);
}

QModelIndex typedCellBeside(const QTreeView& view, int way) {
    return typedCell(view, *view.header(), way);
}

} // namespace kavela::desktop
