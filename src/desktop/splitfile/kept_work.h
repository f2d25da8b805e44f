#pragma once

#include "desktop/splitfile/taking_state.h"

#include <cstddef>
#include <optional>
#include <string>

namespace kavela {
class JsonDocument;
}

namespace kavela::desktop {

/// Unsaved work as the automatic save keeps it: the split file, and beside its own keys the start
/// marks of runs and time trials without a split, for which a split file has no place. Throws
/// EncodeError.
[[nodiscard]] std::string keptWork(const TakingState& state);

/// Gives the runs and time trials of recovered work the start marks that were kept with it.
void takeStarts(TakingState& state, const JsonDocument& kept);

/// How many runs and time trials have a start mark and no split.
[[nodiscard]] int startsWithoutSplit(const TakingState& state);

/// The first run that is not as it is in the other state, which work went on with; nothing where
/// all are the same.
[[nodiscard]] std::optional<std::size_t> firstOtherRun(const TakingState& state,
                                                       const TakingState& other);

} // namespace kavela::desktop
