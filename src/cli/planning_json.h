#pragma once

#include "planning/planning_file.h"

#include <string>

namespace kavela::cli {

/// A planning as one JSON document, ended by a line feed: per athlete and season its weeks with
/// their sessions and totals, and how much of everything else there is.
[[nodiscard]] std::string planningJson(const RecognisedPlanning& planning);

} // namespace kavela::cli
