#pragma once

#include "analysis/race_set.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

/// Where on the course a run wins and loses time against a reference. Where a time was not taken,
/// from there on nothing is known of a run, so its gaps end before it. Where penalties are
/// included, each section's time contains the seconds of its penalties.
namespace kavela {

enum class CourseReferenceKind {
    BestRun, ///< the full run of the least total
    Median,  ///< the median of each section
    Ideal,   ///< the best of each section, penalties left out
    Run,     ///< a run of the race set
    Times,   ///< section times from elsewhere, such as a run of another race
};

/// What the runs are held against.
struct CourseReference {
    CourseReferenceKind kind = CourseReferenceKind::BestRun;
    std::size_t run = 0;            ///< index in the race set, for `Run`
    std::string name = {};          ///< whose times, for `Times`
    std::vector<double> times = {}; ///< seconds by section, for `Times`

    friend bool operator==(const CourseReference&, const CourseReference&) = default;
};

/// The gap of one section, in seconds; negative where the run was faster than the reference.
struct SectionGap {
    double difference = 0;  ///< of the section
    double accumulated = 0; ///< from the start to the section's end
};

/// Sections of the course, up to the last that some run came to: a damaged file may claim any
/// number of them.
[[nodiscard]] std::size_t timedSections(const RaceSet& set);

/// The time of one section of a run as it is compared; 0 when it was not taken.
[[nodiscard]] double comparedTime(const analyzerdata& run, std::size_t section,
                                  bool penaltiesIncluded);

/// The same for every section of the course.
[[nodiscard]] std::vector<double> comparedTimes(const RaceSet& set, const analyzerdata& run,
                                                bool penaltiesIncluded);

/// The full run of the least total; none when no run is full.
[[nodiscard]] std::optional<std::size_t> bestRun(const RaceSet& set, bool penaltiesIncluded);

/// The section times of a reference; empty when the race has no such run.
[[nodiscard]] std::vector<double>
referenceTimes(const RaceSet& set, const CourseReference& reference, bool penaltiesIncluded);

/// The gaps of a run from the start on, up to the first section where either was not timed.
[[nodiscard]] std::vector<SectionGap> courseGaps(std::span<const double> times,
                                                 std::span<const double> reference);

} // namespace kavela
