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

/// The same as one JSON document with what was scanned.
[[nodiscard]] std::string findJson(const QueryAnswer& answer, const std::string& query,
                                   const FolderScan& scan);

/// What is wrong with a query, under the word that it is about.
[[nodiscard]] std::string faultText(const QueryError& error, const std::string& query);

} // namespace kavela::cli
