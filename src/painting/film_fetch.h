#pragma once

#include "cli/painting.h"

namespace kavela::painting {

/// Fetches films as `cli::Painting::fetchFilms` tells.
[[nodiscard]] int fetchFilms(const cli::FilmFetchCall& call);

} // namespace kavela::painting
