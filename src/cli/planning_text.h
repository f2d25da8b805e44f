#pragma once

#include "planning/planning_records.h"

#include <string>

namespace kavela::cli {

/// A planning for reading: per athlete and season a line for each week with anything in it.
[[nodiscard]] std::string planningText(const planningdatac_v6& planning);

} // namespace kavela::cli
