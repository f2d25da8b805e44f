#pragma once

#include "analysis/race_set.h"

#include <string_view>

/// Which times may be called the best of anything. Bold and star, place, gap and percent behind,
/// median, ideal run and potential look at times that were taken, at totals of runs that were timed
/// to the end, and at times of a section or from the start with no untimed section in front of
/// them. Everything else is shown as it stands, and counts for nothing.
namespace kavela {

enum class TimeStanding {
    Counts,
    NotTimed,     ///< no time was taken; what stands there are penalty seconds at most
    NotPositive,  ///< a time of less than nothing, or a sum that holds one
    Merged,       ///< a section's time from further back than its own first mark
    AfterUntimed, ///< a time from the start that leaves out a section
    NotFinished,  ///< the total of a run that was not timed to the end
};

/// Whether a time was taken: a finite number above 0.
[[nodiscard]] bool isTaken(double seconds);

/// Of a time that stands alone: a sprint or real time.
[[nodiscard]] TimeStanding timeStanding(double seconds);

/// Of the time of a section, counted from 0: after one without a time it covers both, unless the
/// marks on the film say that it is of this section alone.
[[nodiscard]] TimeStanding sectionStanding(const sectionmaindata& timing, std::size_t section);

/// Of the time from the start to the end of a section, counted from 0.
[[nodiscard]] TimeStanding accumulatedStanding(const sectionmaindata& timing, std::size_t section);

/// Of the total of a run over a course of so many sections.
[[nodiscard]] TimeStanding totalStanding(const sectionmaindata& timing, std::int64_t sections);

/// Whether the total of a run of the set counts.
[[nodiscard]] bool isWhole(const RaceSet& set, const analyzerdata& run);

/// Why a value counts for nothing, as a sentence for the coach; empty for one that counts.
[[nodiscard]] std::string_view reasonOf(TimeStanding standing);

} // namespace kavela
