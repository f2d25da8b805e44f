#pragma once

#include "cli/console.h"
#include "performance/season.h"

#include <string>

namespace kavela::cli {

/// The season for people: for each athlete the way through the races as a small chart beside the
/// figures, then what ranks took and the places that may be expected.
[[nodiscard]] std::string teamSeasonText(const Season& season, const Terminal& terminal);

} // namespace kavela::cli
