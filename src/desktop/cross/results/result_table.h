#pragma once

#include <QString>

namespace kavela::desktop {

class ColumnTable;
class RowModel;

/// A table of results, beside others on a page: only read, and as high as its rows. Its first
/// column takes the room that is left. The table owns its rows.
[[nodiscard]] ColumnTable* resultTable(RowModel* rows, const QString& name);

/// All rows, whichever are selected, as the clipboard takes them, under their titles.
[[nodiscard]] QString wholeTableText(const ColumnTable& table);

} // namespace kavela::desktop
