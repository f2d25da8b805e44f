#pragma once

#include "analysis/analyzer_records.h"
#include "splitdata/document.h"

#include <functional>

namespace kavela {

/// The runs of one race, in the order of the split file, with what the comparison needs of the
/// course.
struct RaceSet {
    std::vector<analyzerdata> alldata;
    std::vector<std::string> sectiontitles;
    std::int64_t totalsplits = 0; ///< number of sections of the course
    std::int64_t gates = 0;       ///< number of gates of the course
    std::vector<std::int64_t> upGates;
    std::vector<std::vector<std::int64_t>> definedsections; ///< gate numbers of each section

    /// Whether the whole course of a run was timed.
    [[nodiscard]] bool isFull(const analyzerdata& run) const;
};

/// Turns the runs of a document into the race set. `file` is the split file's place: films are
/// looked for in its folder. The document is taken over, not copied.
[[nodiscard]] RaceSet makeRaceSet(splittakerdata031 document, const std::filesystem::path& file);

/// The runs that `keep` accepts, compared among themselves.
[[nodiscard]] RaceSet filteredRaceSet(const RaceSet& set,
                                      const std::function<bool(const analyzerdata&)>& keep);

} // namespace kavela
