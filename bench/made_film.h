#pragma once

#include <filesystem>

namespace kavela::bench {

/// Makes a film of 1080 lines at 50 a second, of 20 Mbit/s, with a picture that moves. Films of
/// another `noise`, from 1 to 100, have other pictures. Throws std::runtime_error when it cannot be
/// made.
void makeFilm(const std::filesystem::path& path, int seconds, int noise);

} // namespace kavela::bench
