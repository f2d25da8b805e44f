#pragma once

#include <QStringList>

class QTableView;

namespace kavela::desktop {

/// The role of a header in which a model tells the name that a column is remembered by, where that
/// is not its title.
inline constexpr int ColumnNameRole = Qt::UserRole + 1100;

/// Which columns of a table are shown and in which order, as it is remembered: the name of each
/// column, with a minus in front where it is hidden. A column that the list does not know stands
/// behind the one in front of it, and is shown.
[[nodiscard]] QStringList columnLayout(const QTableView& table);
/// The first `fixed` columns keep their places.
void applyColumnLayout(QTableView& table, const QStringList& layout, int fixed = 0);

/// The columns that are shown, in the order of the screen.
[[nodiscard]] QList<int> shownColumns(const QTableView& table);

} // namespace kavela::desktop
