#pragma once

#include <QStringList>

class QAction;
class QMenu;

namespace kavela::desktop {

class FrozenTable;

/// Which columns of a split table are shown and in which order, as it is remembered from race to
/// race: the name of each column, with a minus in front where it is hidden. A column that the list
/// does not know stands after those it knows, and is shown.
[[nodiscard]] QStringList columnLayout(const FrozenTable& table);
void applyColumnLayout(FrozenTable& table, const QStringList& layout);

/// The columns that are shown, in the order of the screen.
[[nodiscard]] QList<int> shownColumns(const FrozenTable& table);

} // namespace kavela::desktop
