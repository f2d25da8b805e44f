#pragma once

#include "cli/painting.h"

namespace kavela::painting {

/// Shares a folder as `cli::Painting::shareFolder` tells.
[[nodiscard]] int shareFolder(const cli::FolderShareCall& call);

} // namespace kavela::painting
