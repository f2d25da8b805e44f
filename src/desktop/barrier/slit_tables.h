#pragma once

#include "desktop/barrier/slit_race.h"
#include "desktop/shell/tables/column_model.h"
#include "vision/light_barrier.h"

#include <optional>

namespace kavela::desktop {

/// A run beside the slit picture.
struct SlitRunRow {
    SlitRun run;
    std::optional<Proposal> proposal = {}; ///< that falls to it
    bool isSearched = false;               ///< else there can be none
};

/// A place where a boat may have crossed.
struct ProposalRow {
    Proposal proposal;
    int run = -1; ///< of the race, that it falls to; below 0 for none
    QString crew; ///< of that run; empty for none
    bool isMarked = false;
};

[[nodiscard]] ColumnModel<SlitRunRow>::Columns slitRunColumns();
[[nodiscard]] ColumnModel<ProposalRow>::Columns proposalColumns();

} // namespace kavela::desktop
