#pragma once

#include "desktop/shell/edit_order.h"

namespace kavela::desktop {

/// A tree that is moved in like a table: left and right go from cell to cell, and in the first
/// column close and open a row.
class SeasonTree : public EditOrder<QTreeView> {
    Q_OBJECT

public:
    using EditOrder::EditOrder;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};

} // namespace kavela::desktop
