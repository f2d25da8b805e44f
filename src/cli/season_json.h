#pragma once

#include "performance/season.h"

#include <string>

namespace kavela::cli {

/// The season as one JSON document. Intervals and figures that are not known are null.
[[nodiscard]] std::string teamSeasonJson(const Season& season);

} // namespace kavela::cli
