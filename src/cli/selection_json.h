#pragma once

#include "results/selection_ranking.h"

#include <string>

namespace kavela::cli {

/// The ranking of a recomputed selection as one JSON document, ended by a line feed.
[[nodiscard]] std::string selectionJson(const selectionracesStruct_v3& document, BonusKind bonus);

} // namespace kavela::cli
