#pragma once

#include "analysis/split_table.h"

#include <string>

namespace kavela::cli {

/// The table as one JSON document with full-precision values, ended by a line feed.
[[nodiscard]] std::string tableJson(const SplitTable& table);

} // namespace kavela::cli
