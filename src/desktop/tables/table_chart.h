#pragma once

#include "desktop/charts/chart_content.h"
#include "tables/table.h"

#include <cstddef>

namespace kavela::desktop {

/// The numbers of a column, row by row in the order of the table: counts as bars, times and other
/// measures as points; each group in a colour of its own. What counts nowhere is left out, and said
/// so. A column without numbers, or beyond the table, says what to choose instead.
[[nodiscard]] ChartContent columnContent(const ListTable& table, std::size_t column);

} // namespace kavela::desktop
