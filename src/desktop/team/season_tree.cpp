#include "desktop/team/season_tree.h"

namespace kavela::desktop {

QModelIndex SeasonTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex current = currentIndex();
    const bool isSideways = action == MoveLeft || action == MoveRight;
    if (!isSideways || !current.isValid())
        return EditOrder::moveCursor(action, modifiers);
    const bool isFirst = current.column() == 0;
    if (isFirst && action == MoveLeft) {
        collapse(current);
        return current;
    }
    if (isFirst && action == MoveRight && model()->hasChildren(current) && !isExpanded(current)) {
        expand(current);
        return current;
    }
    const QModelIndex next =
        current.siblingAtColumn(current.column() + (action == MoveRight ? 1 : -1));
    return next.isValid() ? next : current;
}

} // namespace kavela::desktop
