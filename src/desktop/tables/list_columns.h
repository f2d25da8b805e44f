#pragma once

#include "analysis/colouring.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/tables/table_document.h"

#include <memory>
#include <optional>
#include <vector>

/// How a list is shown as a table.
namespace kavela::desktop {

/// A row of the list, or the title of a group of them.
struct ListedRow {
    std::size_t row = 0;              ///< of the list; of a title the first one below it
    std::optional<std::size_t> group; ///< whose title it is
};

using ListColumns = ColumnModel<ListedRow>::Columns;

/// The rows of a table in its order, each group below its title.
[[nodiscard]] std::vector<ListedRow> listedRows(const ListTable& table);

/// A column for each of the table's, with its tints and what was refused, and one for the athletes
/// where the rows are joined. Rows that the table does not have are empty.
[[nodiscard]] ListColumns listColumns(const TableDocument& document, ColourScale scale);

/// What a kind of column is called.
[[nodiscard]] QString kindTitle(ListColumnKind kind);

/// What was refused, by line and column.
[[nodiscard]] ColumnModel<RefusedCell>::Columns refusedColumns();

} // namespace kavela::desktop
