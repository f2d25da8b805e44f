#pragma once

#include "desktop/shell/cell_delegate.h"

namespace kavela::desktop {

/// The cells of the season tree. Offers the events of a race to choose from, where the cell is one
/// of a race.
class EventDelegate : public CellDelegate {
    Q_OBJECT

public:
    using CellDelegate::CellDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// As high as the rows of the tables.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace kavela::desktop
