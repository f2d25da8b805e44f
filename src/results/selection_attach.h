#pragma once

#include "results/selection_takeover.h"
#include "splitdata/document.h"

#include <span>
#include <string>
#include <vector>

/// The results of a race of a selection from its split files.
namespace kavela {

/// The runs of split files. An athlete's runs are those of the same name and category, however both
/// are written. The official time and penalty of a run go before the ones taken from video; an
/// unfinished run without an official time is none.
[[nodiscard]] FoundRuns foundInSplitFiles(const selectionracesStruct_v3& document,
                                          std::span<const splittakerdata031> files);

/// A run of a split file that went into no result.
struct UnusedRun {
    std::string crew;
    std::string category;
    std::string reason;
};

/// What attaching did.
struct Attached {
    EnteredRuns entered;
    std::vector<UnusedRun> unused; ///< runs of nobody in the selection, and unfinished ones
};

/// Takes the results of one race from its split files as they are found. An athlete without a run
/// has a missing result; in a category that no file has, a result that is there stays. Recompute
/// afterwards.
[[nodiscard]] Attached attachRace(selectionracesStruct_v3& document, std::size_t race,
                                  std::span<const splittakerdata031> files);

} // namespace kavela
