#pragma once

#include "analysis/colouring.h"
#include "tables/table.h"

#include <vector>

namespace kavela {

/// The band of each row's number among the numbers of its column, as in the split table; clear for
/// what counts nowhere. The least number is the fastest. Throws TableError for a column without
/// numbers.
[[nodiscard]] std::vector<Band> tableBands(const GridColumn& column);

} // namespace kavela
