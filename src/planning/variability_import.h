#pragma once

#include "planning/planning_records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Import of heart-rate variability measurements from a list.
namespace kavela {

/// A line that was left out.
struct SkippedMeasurement {
    std::int64_t line = 0; ///< counted from 1, the header included
    std::string reason;
};

struct VariabilityList {
    std::vector<variabilitydataplanning_v2> measurements; ///< in the order of the list
    std::vector<SkippedMeasurement> skipped;
};

/// Reads a list: a header line, then one measurement per line. The header names the columns, in any
/// order and whatever their case: Date and one or more of AVNN, SDNN, rMSSD, pNN50, LF, HF; other
/// columns are passed over. Fields are separated by semicolons, commas or tabs, whichever the
/// header has. A date is 2026-03-09, with or without a time of day (T or blank, 07:30 or 07:30:15),
/// taken as UTC. Numbers have a point and are not negative; an empty field is 0, not measured. A
/// blank line is passed over, any other one that cannot be read is skipped with the reason; so is
/// the header, and with it the whole list, when it names no date or no index.
[[nodiscard]] VariabilityList parseVariability(std::string_view text);

/// Adds measurements in order of time, leaving out those of a moment that is there already; gives
/// how many were added.
std::size_t addMeasurements(std::vector<variabilitydataplanning_v2>& present,
                            const std::vector<variabilitydataplanning_v2>& measurements);

} // namespace kavela
