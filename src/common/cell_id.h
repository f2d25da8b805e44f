#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kavela {

/// A cell of a table that is asked about: "cell/0/Time", the row counted from 0. What stands behind
/// the second stroke is the column, whatever signs its name has.
struct CellId {
    std::size_t row = 0;
    std::string_view column;
};

/// Nothing for a text that is no such id.
[[nodiscard]] std::optional<CellId> parsedCellId(std::string_view id);

} // namespace kavela
