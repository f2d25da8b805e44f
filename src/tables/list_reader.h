#pragma once

#include "tables/list_grid.h"

#include <string>
#include <string_view>

/// Lists as text: files, what was copied from a page or a spreadsheet, what a split file keeps.
namespace kavela {

/// Stands for columns that are apart by two blanks or more.
inline constexpr std::string_view TwoBlanks = "  ";

/// Which of tab, ";", "|", "," and two blanks gives most lines the same count of fields, two or
/// more; on a draw the first of them. A comma that stands between digits only gives way to two
/// blanks: it is decimal. Empty where none parts anything.
[[nodiscard]] std::string listSeparatorOf(std::string_view text);

/// The lines of a text in UTF-8 that have something on them. A field in quotes may hold the
/// separator, doubled quotes and line ends, which become blanks; quotes that do not close stand for
/// themselves.
[[nodiscard]] ListGrid readList(std::string_view text, std::string_view separator);

/// The same with the separator that the text has.
[[nodiscard]] ListGrid readList(std::string_view text);

} // namespace kavela
