#pragma once

#include "report/page_builder.h"
#include "report/run_sheet_data.h"
#include "report/typeface.h"

namespace kavela::report {

/// Puts the splits of a run as a table with a bar for each gap, and strokes where there are any;
/// the run itself is the last line. A course of very many splits is cut. Nothing without splits.
void putSplits(PageBuilder& pages, const RunSheetData& data, const Typeface& typeface);

} // namespace kavela::report
