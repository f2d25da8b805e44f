#pragma once

#include "common/why.h"
#include "facts/query.h"

#include <optional>
#include <string_view>

/// Why a number that a query found is what it is.
namespace kavela {

/// Of a row: what its column says, and where in which file that stands. Of a group: what is
/// reckoned from its rows, of which the first ones are named with their places. `row` and `column`
/// count from 0 in the answer. Nothing for words, days and what a row has none of.
[[nodiscard]] std::optional<Reason> explainFound(const QueryAnswer& answer, std::size_t row,
                                                 std::size_t column);

/// The same by an id, "cell/ROW/COLUMN": the row counted from 0, the column by its title.
[[nodiscard]] std::optional<Reason> explainFound(const QueryAnswer& answer, std::string_view id);

} // namespace kavela
