#pragma once

#include "cli/penalty_findings.h"

#include <string>

namespace kavela::cli {

/// Rates, details, costs and the trade-off as one JSON document.
[[nodiscard]] std::string penaltiesJson(const FactStore& facts, const PenaltyFindings& findings);

/// The table of rates as semicolon-separated text, a line for each row.
[[nodiscard]] std::string penaltiesCsv(const PenaltyRates& rates);

} // namespace kavela::cli
