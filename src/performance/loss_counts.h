#pragma once

#include "common/why.h"
#include "facts/groups.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// What stands beside the losses of a run: its total and place, strokes and penalties of a stretch.
/// Runs are those of the store, sections count from 1.
namespace kavela {

/// Seconds with penalties, official where the run has an official time; nothing for a run that has
/// no total.
[[nodiscard]] std::optional<double> lossTotal(const FactStore& facts, std::size_t run,
                                              Why* why = nullptr);

/// The place of a run among those of its group; nothing without a total.
[[nodiscard]] std::optional<int> placeInGroup(const FactStore& facts, const RivalGroup& group,
                                              std::size_t run, Why* why = nullptr);

/// Strokes marked in some sections; nothing for a run in which none are marked at all.
[[nodiscard]] std::optional<std::int64_t> stretchStrokes(const FactStore& facts, std::size_t run,
                                                         std::size_t first, std::size_t last,
                                                         Why* why = nullptr);

/// Seconds of penalty in some sections.
[[nodiscard]] std::int64_t stretchPenalties(const FactStore& facts, std::size_t run,
                                            std::size_t first, std::size_t last,
                                            Why* why = nullptr);

} // namespace kavela
