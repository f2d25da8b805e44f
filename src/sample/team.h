#pragma once

#include "results/team_records.h"

namespace kavela::sample {

/// A national team of twelve over four seasons, the last one first: from medalists to newcomers,
/// one of them retired, some in two categories.
[[nodiscard]] myTeamToSaveStruct sampleTeam();

} // namespace kavela::sample
