#pragma once

#include "tables/list_grid.h"

#include <string>
#include <string_view>
#include <vector>

/// Lists of any kind: what a document is, its first bytes say.
namespace kavela {

/// The lists of a document: one of a text, one for each sheet of a spreadsheet that has something
/// on it. A text may be UTF-8, UTF-16 or Latin-1. Throws TableError for a document that is none: a
/// PDF, a picture, an empty one.
[[nodiscard]] std::vector<ListGrid> readLists(std::string bytes);

/// The list of a name, whatever its case and accents; of one list only, that one where the name is
/// empty. Throws TableError that names the lists there are.
[[nodiscard]] ListGrid chosenList(std::vector<ListGrid> lists, std::string_view name);

} // namespace kavela
