#pragma once

namespace kavela::desktop {

class ColumnTable;
class RowModel;

/// A table of what was taken on the film, beside it: its rows stand in the order in which they were
/// taken, and one of them is chosen.
[[nodiscard]] ColumnTable* filmTable(RowModel& rows, const char* name);

} // namespace kavela::desktop
