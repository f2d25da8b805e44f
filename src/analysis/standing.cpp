#include "analysis/standing.h"

#include "common/text.h"
#include "splitdata/run_timing.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kavela {

namespace {

/// Of the sum of some times; the first that is not there, or is none, decides.
TimeStanding sumStanding(std::span<const double> times, TimeStanding whereUntimed) {
    for (const double time : times)
        if (!isTaken(time))
            return time == 0 ? whereUntimed : TimeStanding::NotPositive;
    return TimeStanding::Counts;
}

} // namespace

bool isTaken(double seconds) {
    return std::isfinite(seconds) && seconds > 0;
}

TimeStanding timeStanding(double seconds) {
    if (seconds == 0)
        return TimeStanding::NotTimed;
    return isTaken(seconds) ? TimeStanding::Counts : TimeStanding::NotPositive;
}

TimeStanding sectionStanding(const sectionmaindata& timing, std::size_t section) {
    const TimeStanding own = timeStanding(entryOrZero(timing.times, section));
    const bool isMerged = section > 0 && !isTaken(entryOrZero(timing.times, section - 1)) &&
                          !isBetweenItsMarks(timing.times, timing.cmtimes, section);
    return own == TimeStanding::Counts && isMerged ? TimeStanding::Merged : own;
}

TimeStanding accumulatedStanding(const sectionmaindata& timing, std::size_t section) {
    const std::vector<double>& times = timing.times;
    if (std::ranges::none_of(times, [](double time) { return time != 0; }))
        return TimeStanding::NotTimed;
    if (section >= times.size())
        return TimeStanding::AfterUntimed;
    return sumStanding(std::span(times).first(section + 1), TimeStanding::AfterUntimed);
}

TimeStanding totalStanding(const sectionmaindata& timing, std::int64_t sections) {
    if (timing.totaltime == 0 && timing.times.empty())
        return TimeStanding::NotTimed;
    if (!isFullRun(timing.times, sections))
        return TimeStanding::NotFinished;
    const auto course = std::span(timing.times).first(static_cast<std::size_t>(sections));
    const TimeStanding standing = sumStanding(course, TimeStanding::NotFinished);
    return standing == TimeStanding::Counts ? timeStanding(timing.totaltime) : standing;
}

bool isWhole(const RaceSet& set, const analyzerdata& run) {
    return totalStanding(run.sectioninfo, set.totalsplits) == TimeStanding::Counts;
}

std::string_view reasonOf(TimeStanding standing) {
    switch (standing) {
    case TimeStanding::Counts:
        return {};
    case TimeStanding::NotTimed:
        return translated("No time was taken here.");
    case TimeStanding::NotPositive:
        return translated("A time must be above 0. Check the marks of this run.");
    case TimeStanding::Merged:
        return translated("The section before was not timed, so this time covers both.");
    case TimeStanding::AfterUntimed:
        return translated(
            "A section up to here was not timed, so this is not the time from the start.");
    case TimeStanding::NotFinished:
        return translated(
            "This run was not timed to the end, so this is not the time of the whole course.");
    }
    return {};
}

} // namespace kavela
