#pragma once

#include "analysis/split_table.h"

#include <string>

namespace kavela::page {

/// A cell of the analyzer's table as `<td>`, with its text to the digit and its colour as a class.
[[nodiscard]] std::string tableCell(const TableCell& cell);

/// The rules of these classes: the tints of a scale as they are, the words of the other mode in
/// colours that can be read on a light and on a dark page.
[[nodiscard]] std::string cellStyle(ColourScale scale);

} // namespace kavela::page
