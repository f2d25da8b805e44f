#include "analysis/standing.h"

#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kavela {

namespace {

/// Of the sum of some times; the first that is not there, or is none, decides.
Standing sumStanding(std::span<const double> times, Standing whereUntimed) {
    for (const double time : times)
        if (!isTaken(time))
            return time == 0 ? whereUntimed : Standing::NotPositive;
    return Standing::Counts;
}

} // namespace

bool isTaken(double seconds) {
    return std::isfinite(seconds) && seconds > 0;
}

Standing timeStanding(double seconds) {
    if (seconds == 0)
        return Standing::NotTimed;
    return isTaken(seconds) ? Standing::Counts : Standing::NotPositive;
}

Standing accumulatedStanding(const sectionmaindata& timing, std::size_t section) {
    const std::vector<double>& times = timing.times;
    if (std::ranges::none_of(times, [](double time) { return time != 0; }))
        return Standing::NotTimed;
    if (section >= times.size())
        return Standing::AfterUntimed;
    return sumStanding(std::span(times).first(section + 1), Standing::AfterUntimed);
}

Standing totalStanding(const sectionmaindata& timing, std::int64_t sections) {
    if (timing.totaltime == 0 && timing.times.empty())
        return Standing::NotTimed;
    if (!isFullRun(timing.times, sections))
        return Standing::NotFinished;
    const auto course = std::span(timing.times).first(static_cast<std::size_t>(sections));
    const Standing standing = sumStanding(course, Standing::NotFinished);
    return standing == Standing::Counts ? timeStanding(timing.totaltime) : standing;
}

bool isWhole(const RaceSet& set, const analyzerdata& run) {
    return totalStanding(run.sectioninfo, set.totalsplits) == Standing::Counts;
}

std::string_view reasonOf(Standing standing) {
    switch (standing) {
    case Standing::Counts:
        return {};
    case Standing::NotTimed:
        return "No time was taken here.";
    case Standing::NotPositive:
        return "A time must be above 0. Check the marks of this run.";
    case Standing::AfterUntimed:
        return "A section up to here was not timed, so this is not the time from the start.";
    case Standing::NotFinished:
        return "This run was not timed to the end, so this is not the time of the whole course.";
    }
    return {};
}

} // namespace kavela
