#pragma once

#include "cli/painting.h"

namespace kavela::painting {

/// Follows something through a film as `cli::Painting::trackFilm` tells.
[[nodiscard]] int trackFilm(const cli::TrackCall& call);

} // namespace kavela::painting
