#pragma once

#include "facts/folder_scan.h"

#include <string>
#include <vector>

namespace kavela::cli {

/// Reads the split files that a call names, with a bar on a terminal, and tells on standard error
/// what could not be read. A folder stands for all split files below it, any other path for itself.
/// What an earlier call read and did not change since comes from the cache; nothing is rewritten.
[[nodiscard]] FolderScan scanNamed(const std::vector<std::string>& paths);

/// Whether there is a file to say something about; tells where there was none at all.
[[nodiscard]] bool hasFiles(const FolderScan& scan);

} // namespace kavela::cli
