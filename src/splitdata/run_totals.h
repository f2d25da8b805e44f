#pragma once

#include "splitdata/records.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Which times of a run were taken, and what its total is.
namespace kavela {

/// Whether a time is one: finite, above 0 and below 999. 0 was not timed, lists write 999.9 and
/// 999.99 for no result, and below 0 a mark is wrong.
[[nodiscard]] bool isTakenTime(double seconds);

/// What a whole run took.
struct RunTotal {
    double paddling = 0;      ///< seconds without penalties
    std::int64_t penalty = 0; ///< seconds
    bool official = false;    ///< from the results list, otherwise from the video

    [[nodiscard]] double total() const { return paddling + static_cast<double>(penalty); }
};

/// The official time and penalty where there is an official time; otherwise, where every one of the
/// course's sections was taken, their sum and the penalty of the video. Nothing for a run that was
/// not started, not finished or disqualified, which isRefused() knows also beside a time.
[[nodiscard]] std::optional<RunTotal> totalOf(const infodata031& info, const athletedata031& run);

/// Whether the race's results list says that a crew did not start, did not finish or was
/// disqualified. A list has no field for it: DNS, DNF or DSQ stands as a word by itself beside the
/// crew's name or nation.
[[nodiscard]] bool isRefused(const infodata031& info, const athletedata031& run);

/// Whether the time of a section, counted from 0, is what lies between its two marks as they stand
/// on the first film.
[[nodiscard]] bool isBetweenItsMarks(std::span<const double> times,
                                     std::span<const std::vector<CMTime>> marks,
                                     std::size_t section);

/// Whether the time of a section, counted from 0, is of this section alone: it was taken, and so
/// was the one before, or at least the mark that ends that one, as where a film began behind the
/// start. After a section that was not timed a time covers both.
[[nodiscard]] bool standsAlone(const athletedata031& run, std::size_t section);

} // namespace kavela
