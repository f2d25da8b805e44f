#pragma once

#include "common/why.h"
#include "facts/fact_store.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kavela {

/// What the chosen one of several ways cost against the fastest one timed.
struct WayCost {
    std::size_t run = 0;   ///< of the store
    std::size_t entry = 0; ///< of the run's ways, from 0
    std::string title;
    std::optional<double> cost; ///< none when the chosen way has no time
};

/// The ways compared in some runs.
[[nodiscard]] std::vector<WayCost> wayCostsOf(const FactStore& facts,
                                              std::span<const std::size_t> runs);

/// The cost of one choice, from 0 where the fastest way was chosen.
[[nodiscard]] std::optional<double> wayCost(const FactStore& facts, std::size_t run,
                                            std::size_t entry, Why* why = nullptr);

} // namespace kavela
