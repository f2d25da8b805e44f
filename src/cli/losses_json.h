#pragma once

#include "performance/loss_season.h"
#include "performance/losses.h"

#include <span>
#include <string>

namespace kavela::cli {

/// The losses of one file as a JSON document.
[[nodiscard]] std::string lossesJson(const FactStore& facts, const LossReference& reference,
                                     std::span<const RunLosses> runs);

/// The losses of an athlete's season.
[[nodiscard]] std::string seasonLossesJson(const std::string& athlete,
                                           const LossReference& reference,
                                           const SeasonLosses& season);

} // namespace kavela::cli
