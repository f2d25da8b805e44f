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

/// A folder stands for all split files below it; any other path for itself, once.
[[nodiscard]] PathsToUpgrade splitFilesUnder(const std::vector<std::string>& paths);

} // namespace kavela::cli
