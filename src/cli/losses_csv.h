#pragma once

#include "performance/loss_season.h"
#include "performance/losses.h"

#include <span>
#include <string>

namespace kavela::cli {

/// Semicolon-separated text: a line for each stretch, and for each run with a sum its penalties,
/// its timing and its gap. Numbers are the shortest that read back the same.
[[nodiscard]] std::string lossesCsv(const FactStore& facts, std::span<const RunLosses> runs);

/// The rows of a season.
[[nodiscard]] std::string seasonLossesCsv(const SeasonLosses& season);

} // namespace kavela::cli
