#pragma once

#include "performance/loss_sides.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace kavela {

/// Time lost in an upstream gate, by its first entry in both runs.
struct GateLoss {
    std::int32_t gate = 0; ///< from 1
    std::int16_t direction = 0;
    std::int16_t style = 0;
    double time = 0;
    double reference = 0;
    double loss = 0;
    std::optional<double> entrance; ///< loss to the pole line; none unless all four parts are known
    std::optional<double> exit;     ///< loss from there
};

/// Whether the course tells of each of its sections which gates it has.
[[nodiscard]] bool knowsGatesOfSections(const FactStore& facts, const FileRow& file);

/// The section, from 1, in which a gate hangs; nothing when none has it.
[[nodiscard]] std::optional<std::size_t> lossSectionOf(const FactStore& facts, const FileRow& file,
                                                       std::int64_t gate);

/// The upstream gates that both have a time of, by number.
[[nodiscard]] std::vector<GateLoss> gateLossesOf(const LossPair& pair);

/// The losses of one gate. Both sides must have a time of it.
[[nodiscard]] double gateLoss(const LossPair& pair, std::int32_t gate, Why* why = nullptr);
[[nodiscard]] std::optional<double> entranceLoss(const LossPair& pair, std::int32_t gate,
                                                 Why* why = nullptr);
[[nodiscard]] std::optional<double> exitLoss(const LossPair& pair, std::int32_t gate,
                                             Why* why = nullptr);

} // namespace kavela
