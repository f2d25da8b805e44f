#pragma once

#include "results/selection_records.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavela::sample {

/// A spring's selection: four races, the first of them the sample's own, in five categories, with
/// ties, missing results, bonuses of two kinds and two preselection groups.
[[nodiscard]] selectionracesStruct_v3 springSelection();

/// A selection of a former season as an older layout kept it.
struct OldSelection {
    std::string_view version; ///< "2"
    std::string text;
};

/// One for each older layout, newest first.
[[nodiscard]] std::vector<OldSelection> oldSelections();

} // namespace kavela::sample
