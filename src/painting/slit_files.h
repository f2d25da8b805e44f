#pragma once

#include "cli/painting.h"

namespace kavela::painting {

/// Writes and prints a slit picture as `cli::Painting::writeSlit` tells.
[[nodiscard]] int writeSlit(const cli::SlitCall& call);

} // namespace kavela::painting
