#pragma once

#include "results/selection_ranking.h"

#include <string>

namespace kavela::cli {

/// The ranking of a recomputed selection as lines of text: percentages by race, those that do not
/// count in brackets.
[[nodiscard]] std::string selectionText(const selectionracesStruct_v3& document, BonusKind bonus);

} // namespace kavela::cli
