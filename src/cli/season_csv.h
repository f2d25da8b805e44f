#pragma once

#include "performance/season.h"

#include <string>

namespace kavela::cli {

/// A line for each phase of a race of each athlete, for spreadsheets: semicolons, a line of titles,
/// numbers with all their digits.
[[nodiscard]] std::string teamSeasonCsv(const Season& season);

} // namespace kavela::cli
