#pragma once

#include "splitdata/records.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The course as the coach enters it: gates, upstream gates and the sections between the splits.
namespace kavela {

/// More gates than any course has; a larger number is a slip of the fingers.
inline constexpr std::int64_t MostGates = 999;
/// The same for splits.
inline constexpr std::int64_t MostSplits = 999;

using CourseSections = std::vector<std::vector<std::int64_t>>;

/// The gates of a course shared among its splits in order, as evenly as possible, the first
/// sections taking what is left over. With more splits than gates the last sections have none.
/// Numbers beyond MostGates and MostSplits, or below 0, are brought to the limit.
[[nodiscard]] CourseSections defaultSections(std::int64_t gates, std::int64_t splits);

/// Titles of sections by their gates: "1-3", "4"; "S5" for a fifth section without gates.
[[nodiscard]] std::vector<std::string> sectionTitles(const CourseSections& sections);

/// The number in the gates field, blanks around it aside; nothing when it is no whole number from 0
/// to MostGates, which messages::GatesNoNumber then says.
[[nodiscard]] std::optional<std::int64_t> parseGates(std::string_view text);

/// Gate numbers as entered, or what is wrong with the text.
struct GateList {
    std::vector<std::int64_t> gates; ///< in ascending order, each once; empty on a fault
    std::string fault;               ///< empty when the text is fine
};

/// Reads gate numbers set apart by commas, semicolons or blanks, such as "3, 7 12".
[[nodiscard]] GateList parseGateList(std::string_view text, std::int64_t gates);

/// The first thing wrong with the sections of a course, for the coach: every gate stands in exactly
/// one section, in order, and there are as many sections as splits. Nothing when they are fine, or
/// when none are defined.
[[nodiscard]] std::optional<std::string> faultOfSections(const infodata031& course);

} // namespace kavela
