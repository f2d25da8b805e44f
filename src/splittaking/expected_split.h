#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kavela {

/// A run as far as it was taken: seconds of its sections in their order, 0 for one that was not
/// timed by itself.
struct SectionTimes {
    std::string category;
    std::vector<double> times;
};

/// From the split times of a run, 0 for a split that was not taken: the one after such a split
/// spans more than its own section.
[[nodiscard]] SectionTimes timedSections(std::string category, std::vector<double> splitTimes);

/// Seconds that a run needs for a section, numbered from 0, as the other runs of the course tell:
/// the median of theirs, times the median of how this run stood to them in the sections it has
/// timed. Runs of its category tell as soon as one of them has timed the section, otherwise all do.
/// Nothing when no other run has timed it.
[[nodiscard]] std::optional<double> expectedSection(const SectionTimes& run, std::size_t section,
                                                    std::span<const SectionTimes> others);

/// The same for all the sections from one to another, the latter left out.
[[nodiscard]] std::optional<double> expectedSections(const SectionTimes& run, std::size_t from,
                                                     std::size_t to,
                                                     std::span<const SectionTimes> others);

} // namespace kavela
