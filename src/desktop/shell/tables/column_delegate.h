#pragma once

#include "desktop/shell/cell_delegate.h"

namespace kavela::desktop {

/// The cells of a table of columns: completes what is typed where the column has proposals.
class ColumnDelegate : public CellDelegate {
    Q_OBJECT

public:
    using CellDelegate::CellDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

} // namespace kavela::desktop
