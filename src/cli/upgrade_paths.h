#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kavela::cli {

/// The files that a call of `upgrade` means.
struct PathsToUpgrade {
    std::vector<std::filesystem::path> files; ///< in the order of the call, folders sorted
    std::vector<std::string> faults;          ///< folders that could not be walked
};

/// A folder stands for all split and selection files below it; any other path for itself, once.
[[nodiscard]] PathsToUpgrade filesToUpgrade(const std::vector<std::string>& paths);

/// The extension of a name in small letters: ".kvx".
[[nodiscard]] std::string smallExtension(const std::filesystem::path& path);

} // namespace kavela::cli
