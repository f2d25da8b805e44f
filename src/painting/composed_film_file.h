#pragma once

#include <filesystem>

namespace kavela::painting {

/// Composes the film of a job as `cli::Painting::composeFilm` tells.
[[nodiscard]] int composeFilm(const std::filesystem::path& job,
                              const std::filesystem::path& output);

} // namespace kavela::painting
