#pragma once

#include "tables/table.h"

#include <string_view>
#include <vector>

/// The order of rows.
namespace kavela {

/// Whether one row's cell stands before another's: numbers ascending, then words such as DNF, then
/// nothing. Texts as people order them.
[[nodiscard]] bool isCellBefore(const GridColumn& column, std::size_t a, std::size_t b);

/// Ordered by a column, descending on wish (what has no number stays at the end); rows that are
/// equal keep their order, groups their rows. Throws TableError for a missing column.
[[nodiscard]] ListTable sortedBy(const ListTable& table, std::string_view column,
                                 bool isDescending);

/// Rows of one value of a column put together, the values in the order of the column. Throws
/// TableError for a missing column.
[[nodiscard]] ListTable groupedBy(const ListTable& table, std::string_view column);

} // namespace kavela
