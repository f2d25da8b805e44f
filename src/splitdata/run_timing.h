#pragma once

#include "splitdata/records.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// What several tools ask of a run: whether it is whole, its penalties by section, its crew's name.
namespace kavela {

/// Whether the whole course was timed: the section at `totalsplits` has a time and no earlier one
/// is 0. A run with fewer times is not whole, nor is any run of a course without splits.
[[nodiscard]] bool isFullRun(std::span<const double> times, std::int64_t totalsplits);

/// Penalty seconds of each section. Where the course has defined sections and the run a penalty for
/// each gate, a section's penalty is the sum over its gates; otherwise entry k of the run's
/// penalties is the penalty of section k.
[[nodiscard]] std::vector<std::int64_t> sectionPenalties(const infodata031& info,
                                                         std::span<const std::int64_t> pens);

/// The crew in one text: "A / B".
[[nodiscard]] std::string crewText(std::span<const std::string> names);

/// Entry `index` of a list, counted from 0; an empty value where the list is too short.
template <class T>
[[nodiscard]] T entryOrZero(const std::vector<T>& list, std::size_t index) {
    return index < list.size() ? list[index] : T{};
}

} // namespace kavela
