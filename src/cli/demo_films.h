#pragma once

#include <filesystem>
#include <string>

namespace kavela::cli {

/// Makes the films of the sample season beside their split files, with a progress bar; a film that
/// is there already stays. Returns the exit status; throws FileError when a film cannot be written.
[[nodiscard]] int writeFilms(const std::filesystem::path& folder);

/// What the help of the command says about them.
[[nodiscard]] std::string filmsHelp();

} // namespace kavela::cli
