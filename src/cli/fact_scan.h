#pragma once

#include "facts/folder_scan.h"

#include <string>
#include <vector>

namespace kavela::cli {

/// Reads the split files that a call names, with a bar on a terminal. What an earlier call read and
/// did not change since comes from the cache.
[[nodiscard]] FolderScan scanWithBar(const std::vector<std::string>& paths);

/// The same, and tells on standard error what could not be read.
[[nodiscard]] FolderScan scanNamed(const std::vector<std::string>& paths);

} // namespace kavela::cli
