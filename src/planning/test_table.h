#pragma once

#include "planning/test_records.h"

#include <span>
#include <string>
#include <vector>

namespace kavela {

/// The results of on-water tests as semicolon-separated text: a line of titles, each heading five
/// columns, a line that names the columns, and one line per run. Numbers are the shortest text that
/// reads back the same; a cell without a value is empty. Sections, and turns to a side, after the
/// fifth are not in the table. Series per stroke are told by section, as testSections has them.
[[nodiscard]] std::string testTableCsv(std::span<const testData> runs);

/// The names of the single columns, and their cells for a run, as they stand in that table.
[[nodiscard]] std::vector<std::string> testTableColumns();
[[nodiscard]] std::vector<std::string> testTableCells(const testData& run);

} // namespace kavela
