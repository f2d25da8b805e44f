#pragma once

#include "tables/table.h"

#include <map>
#include <string>

/// From a list to a table: which line holds the titles, what kind each column is, what is refused.
namespace kavela {

/// What a coach knows better than the guess.
struct TableReading {
    std::optional<bool> hasTitles;
    std::map<std::string, ListColumnKind> kinds; ///< by name of the column
};

/// The titles are in the first line that is as full as most are, unless it holds numbers where the
/// lines below hold some. What stands above, titles that come again, fields behind the last column
/// and cells that are none of their column's kind are refused. A time with its penalty in one cell
/// becomes two columns. Names of `kinds` that no column has mean nothing.
[[nodiscard]] ListTable tableOf(const ListGrid& grid, const TableReading& reading = {});

} // namespace kavela
