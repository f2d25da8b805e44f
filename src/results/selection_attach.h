#pragma once

#include "results/selection_edit.h"
#include "splitdata/document.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace kavela {

/// A run of a split file that went into no result.
struct UnusedRun {
    std::string crew;
    std::string category;
    std::string reason;
};

/// What attaching found.
struct Attached {
    std::int64_t results = 0;         ///< athletes who got one
    std::vector<ResultPlace> missing; ///< athletes without a run, whose result is missing now
    std::vector<UnusedRun> unused;    ///< runs of nobody in the selection, and unfinished ones
};

/// Takes the results of one race from its split files. An athlete's runs are those of the same name
/// and category, however both are written; of several, heats and final alike, the best total
/// counts. The official time and penalty of a run go before the ones taken from video; an
/// unfinished run without an official time is none. An athlete without a run has a missing result;
/// in a category that no file has, a result that is there stays. Places are filled; recompute
/// afterwards.
[[nodiscard]] Attached attachRace(selectionracesStruct_v3& document, std::size_t race,
                                  std::span<const splittakerdata031> files);

} // namespace kavela
