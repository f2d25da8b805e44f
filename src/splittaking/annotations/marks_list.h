#pragma once

#include "splittaking/annotations/lanes.h"

#include <functional>

namespace kavela {

/// A mark as the list of a run's marks shows it. All times are of this run, whatever film a mark
/// lies on; what another film's own clock says stands beside.
struct ListedMark {
    LaneMark mark;
    std::optional<double> seconds; ///< of the run; nothing where its film tells nothing of it
    std::optional<double>
        filmSeconds; ///< on the other film's own clock; nothing on the run's first
};

/// Where on the run's first film a moment of a fixed camera's film lies, in seconds; nothing as
/// long as they are not in step.
using OwnSeconds = std::function<std::optional<double>(std::int64_t camera, double seconds)>;

/// The marks of a run by the time of the run, those without one behind. A mark on the other run of
/// a time loss stands beside its counterpart on this one. Further cameras of the run are placed by
/// a mark that is on both; their repeats of splits and strokes are left out.
[[nodiscard]] std::vector<ListedMark>
marksList(const athletedata031& run, std::span<const LaneMark> marks, const OwnSeconds& ownSeconds);

} // namespace kavela
