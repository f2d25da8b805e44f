#include "splittaking/annotations/film_marks.h"

#include <optional>

namespace kavela {

namespace {

double secondsSince(const std::optional<CMTime>& start, const CMTime& moment) {
    return start ? secondsFrom(*start, moment) : moment.seconds();
}

} // namespace

void retimeNotes(athletedata031& run) {
    const std::optional<CMTime> start = startOf(run);
    for (microsplitsdata025& split : run.microsplits)
        if (isTaken(split.cmtime))
            split.time = secondsSince(start, split.cmtime);
    for (strokessdata025& stroke : run.strokes)
        if (!stroke.cmtimes.empty() && isTaken(stroke.cmtimes.front()))
            stroke.time = secondsSince(start, stroke.cmtimes.front());
}

} // namespace kavela
