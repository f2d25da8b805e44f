#pragma once

#include "desktop/splitfile/taking_state.h"

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

} // namespace kavela::desktop
