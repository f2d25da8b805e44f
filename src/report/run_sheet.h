#pragma once

#include "analysis/race_set.h"
#include "report/paged_report.h"

#include <memory>

namespace kavela::report {

/// One run on one page, whatever it holds: the splits against the best of the category and strokes,
/// penalties on a drawing of the course, upstream gates, time losses, tags and comments. What the
/// run does not have is left out; lists that are too long say how much more there is. Runs are
/// counted from 0; throws std::out_of_range for one that does not exist. Analyses the recording
/// that is attached to the run, which may take a second.
[[nodiscard]] std::unique_ptr<PagedReport> runSheet(const splittakerdata031& race, std::size_t run);

/// The same for a run of a race set, held against the runs of that set.
[[nodiscard]] std::unique_ptr<PagedReport> runSheet(const infodata031& info, const RaceSet& set,
                                                    std::size_t run);

} // namespace kavela::report
