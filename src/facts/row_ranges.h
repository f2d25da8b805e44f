#pragma once

#include "facts/fact_rows.h"

#include <span>
#include <stdexcept>
#include <vector>

/// Rows of a table that belong to a row of another one.
namespace kavela {

/// The number of rows as ranges keep it. Throws std::length_error beyond four milliards of them.
[[nodiscard]] inline std::uint32_t rowCount(std::size_t count) {
    if (count > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("there are more rows of facts than a table can have");
    return static_cast<std::uint32_t>(count);
}

template <class Row>
[[nodiscard]] std::span<const Row> rowsIn(const std::vector<Row>& table, RowRange range) {
    return std::span(table).subspan(range.first, range.count);
}

/// The rows from `first` to the end of a table.
template <class Row>
[[nodiscard]] RowRange rangeFrom(const std::vector<Row>& table, std::size_t first) {
    return {rowCount(first), rowCount(table.size()) - rowCount(first)};
}

} // namespace kavela
