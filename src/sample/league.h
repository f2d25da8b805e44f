#pragma once

#include "sample/races.h"

#include <vector>

namespace kavela::sample {

/// A league over the season before: the same four categories on courses hung anew each time, with
/// runs enough to tell what an athlete loses from chance. One of its rounds is a race that the
/// team's results have too.
[[nodiscard]] std::vector<RacePlan> leagueRounds();

} // namespace kavela::sample
