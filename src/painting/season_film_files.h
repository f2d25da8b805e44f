#pragma once

#include <filesystem>

namespace kavela::painting {

/// Makes the films of the sample season as `cli::Painting::writeSeasonFilms` tells.
[[nodiscard]] int writeSeasonFilms(const std::filesystem::path& folder);

} // namespace kavela::painting
