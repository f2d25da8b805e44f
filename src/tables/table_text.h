#pragma once

#include "tables/table.h"

#include <string>

namespace kavela {

/// A cell for other programs: numbers with all their digits and a point, times in seconds, days as
/// 2026-05-03, else the text as it stands.
[[nodiscard]] std::string plainCellText(const GridColumn& column, std::size_t row);

/// The table as text: semicolons, a line of titles.
[[nodiscard]] std::string tableCsv(const ListTable& table);

} // namespace kavela
