#pragma once

#include "tables/list_grid.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Spreadsheets (.xlsx, .ods) of results.
namespace kavela {

/// What a document is by its first bytes.
enum class ListFormat {
    Text,
    Spreadsheet,    ///< .xlsx or .ods
    OldSpreadsheet, ///< .xls, or an .xlsx with a password
    Pdf,
};

[[nodiscard]] ListFormat listFormatOf(std::string_view bytes);

/// The sheets of a spreadsheet in their order, empty ones without lines. Numbers stand in plain
/// form with a point, days as 2026-05-03, times of day and durations as 1:32.45. The value of
/// merged cells stands in the first of them and in each line below it. A formula without a value
/// and a cell with an error are refused. Throws TableError for what is no such document, is
/// damaged, needs a password or is too large.
[[nodiscard]] std::vector<ListGrid> readSheets(std::string_view bytes);

} // namespace kavela
