#pragma once

#include "tables/list_grid.h"

#include <string>
#include <vector>

namespace kavela {

class ZipParts;

/// The sheets of an .xlsx document; `workbook` is the content of its part of that name. Throws
/// TableError.
[[nodiscard]] std::vector<ListGrid> xlsxSheets(ZipParts& parts, const std::string& workbook);

} // namespace kavela
