#pragma once

#include "common/why.h"
#include "tables/table_steps.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>

/// Why a number of a table is what it is.
namespace kavela {

/// The number in a cell: rows and columns are counted from 0. What it was made of stands in the
/// file, by line and column of the list; an empty one is what was copied. Nothing for a cell
/// without a number, or beyond the table.
[[nodiscard]] std::optional<Reason> explainTable(const TableSteps& steps, std::size_t row,
                                                 std::size_t column,
                                                 const std::filesystem::path& file);

/// The same by an id, "cell/ROW/COLUMN": the row counted from 0, the column by its name or its
/// number from 1. Nothing when it is none. Throws TableError for a column that there is not.
[[nodiscard]] std::optional<Reason> explainTable(const TableSteps& steps, std::string_view id,
                                                 const std::filesystem::path& file);

} // namespace kavela
