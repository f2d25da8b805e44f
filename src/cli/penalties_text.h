#pragma once

#include "cli/console.h"
#include "cli/penalty_findings.h"

#include <string>

namespace kavela::cli {

/// Rates, costs, details and the trade-off as lines of text. On a terminal the long tables end
/// after their first rows and fit its width; piped they are whole.
[[nodiscard]] std::string penaltiesText(const FactStore& facts, const PenaltyFindings& findings,
                                        const Terminal& terminal);

} // namespace kavela::cli
