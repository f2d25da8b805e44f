#pragma once

#include "report/page_builder.h"
#include "report/table_layout.h"

namespace kavela::report {

/// Puts a table onto the rest of the present page and as many more as it takes. Each page repeats
/// the head of the columns and the legend; a group that goes on has its title again.
void putTable(PageBuilder& pages, const ReportTable& table, const TableLayout& layout,
              const Typeface& typeface);

} // namespace kavela::report
