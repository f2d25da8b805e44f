#pragma once

#include "splitdata/document.h"

namespace kavela::sample {

/// A cross race: time trials of eight kayaks, two heats of four, and the final of the best four.
[[nodiscard]] splittakerdata031 crossRace();

} // namespace kavela::sample
