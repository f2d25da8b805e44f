#pragma once

#include "results/team_records.h"

#include <optional>
#include <string>

namespace kavela::cli {

/// The team of a file; nothing, after a message, when it cannot be read.
[[nodiscard]] std::optional<myTeamToSaveStruct> teamOfFile(const std::string& path);

} // namespace kavela::cli
