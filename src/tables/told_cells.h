#pragma once

#include "common/why.h"
#include "tables/table.h"

#include <cstddef>
#include <optional>
#include <span>

/// What cells tell of themselves where another number is made of them. The file that the list is
/// from is for the one to name who knows it.
namespace kavela {

/// Where a cell stands in the list: its line, and its column unless that was reckoned. Nothing for
/// a row that several lines were put together into.
[[nodiscard]] std::optional<Place> placeOfCell(const ListTable& table, std::size_t column,
                                               std::size_t row);

/// What a number says of a cell that it is made of.
enum class ToldOfCell { Number, CountsAsOne };

/// Tells of cells with a number under the crews of their rows, or the column where the table has no
/// crews; of more than anybody reads, how many there are.
void tellCells(const ListTable& table, std::size_t column, std::span<const std::size_t> rows,
               Why& why, ToldOfCell what = ToldOfCell::Number);

} // namespace kavela
