#pragma once

#include "cli/console.h"
#include "performance/loss_season.h"
#include "performance/losses.h"

#include <span>
#include <string>

namespace kavela::cli {

/// The losses of one file for people: by category and phase, each run from the reference's total
/// to its own, its upstream gates, and what was noted.
[[nodiscard]] std::string lossesText(const FactStore& facts, std::span<const RunLosses> runs,
                                     const Terminal& terminal);

/// The losses of an athlete's season for people: what to train comes last.
[[nodiscard]] std::string seasonLossesText(const FactStore& facts, const std::string& athlete,
                                           const LossReference& reference,
                                           const SeasonLosses& season, const Terminal& terminal);

/// The notes in a table; empty when there are none.
[[nodiscard]] std::string lossNotesText(const LossNotes& notes);

} // namespace kavela::cli
