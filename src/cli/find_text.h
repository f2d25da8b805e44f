#pragma once

#include "cli/console.h"
#include "facts/folder_scan.h"
#include "facts/query.h"

#include <string>
#include <vector>

namespace kavela::cli {

/// The answer as a table: each row with the place where it is to be seen, numbers at the right.
/// Columns that nothing stands in are left out.
[[nodiscard]] std::string findText(const QueryAnswer& answer, const Terminal& terminal);

/// The same for spreadsheets: semicolons, a line of titles, numbers with all their digits.
[[nodiscard]] std::string findCsv(const QueryAnswer& answer);

/// The same as one JSON document with what was scanned.
[[nodiscard]] std::string findJson(const QueryAnswer& answer, const std::string& query,
                                   const FolderScan& scan);

/// What is wrong with a query, under the word that it is about.
[[nodiscard]] std::string faultText(const QueryError& error, const std::string& query);

/// A field of a list with semicolons, in quotes where it needs them.
[[nodiscard]] std::string csvField(const std::string& text);

} // namespace kavela::cli
