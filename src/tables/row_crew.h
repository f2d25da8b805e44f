#pragma once

#include "tables/table.h"

#include <cstddef>
#include <optional>
#include <string>

/// Whom a row is about.
namespace kavela {

/// The crew of a row as its list writes it, surname and given name put together where they stand
/// apart; nothing where the table has no column for it.
[[nodiscard]] std::optional<std::string> crewOfRow(const ListTable& table, std::size_t row);

/// The text of a row in the first column of a role; empty where there is none.
[[nodiscard]] std::string textOfRole(const ListTable& table, ColumnRole role, std::size_t row);

} // namespace kavela
