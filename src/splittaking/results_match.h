#pragma once

#include "splitdata/records.h"

#include <optional>
#include <vector>

/// Which line of an official list belongs to which run.
namespace kavela {

/// A run and its line, both counted from 0.
struct ResultOfRun {
    std::size_t run = 0;
    std::optional<std::size_t> line; ///< nothing where the list has no such name
};

/// For each run the line with its crew: the same words in any order, without regard to case and
/// accents, so that "NOVAK Ána" is Ana Novak. Of several lines with one name the first counts.
[[nodiscard]] std::vector<ResultOfRun> matchedResults(const std::vector<athletedata031>& runs,
                                                      const std::vector<allresultsdata030>& lines);

/// Takes time and penalty of a line into a run, as its real ones.
void takeResult(athletedata031& run, const allresultsdata030& line);

} // namespace kavela
