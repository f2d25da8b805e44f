#pragma once

#include "desktop/shell/tables/table_text.h"

namespace kavela::desktop {

class SplitTableModel;

/// Rows and columns of a split table, in the order given, as text with a line of headers. Cells are
/// numbers that can be reckoned with; penalties that the cells show in brackets stand in a column
/// of their own behind that of the times.
[[nodiscard]] QString splitTableAsText(const SplitTableModel& model, const QList<int>& rows,
                                       const QList<int>& columns, const TextTable& style);

} // namespace kavela::desktop
