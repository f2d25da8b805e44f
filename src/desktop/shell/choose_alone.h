#pragma once

#include <QAbstractItemView>
#include <QItemSelectionModel>

namespace kavela::desktop {

/// Makes a row or cell the only one that is selected. QAbstractItemView::setCurrentIndex adds it to
/// the selection as long as Ctrl is held, which it is during a shortcut such as Ctrl+N.
inline void chooseAlone(QAbstractItemView& view, const QModelIndex& index) {
    auto how = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Current;
    if (view.selectionBehavior() == QAbstractItemView::SelectRows)
        how |= QItemSelectionModel::Rows;
    view.selectionModel()->setCurrentIndex(index, how);
}

} // namespace kavela::desktop
