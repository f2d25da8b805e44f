#pragma once

#include "tables/list_grid.h"

#include <string>
#include <vector>

namespace kavela {

class ZipParts;

/// The sheets of an .ods document; `content` is the content of its part "content.xml". Throws
/// TableError.
[[nodiscard]] std::vector<ListGrid> odsSheets(ZipParts& parts, const std::string& content);

} // namespace kavela
