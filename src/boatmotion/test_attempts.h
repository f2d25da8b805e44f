#pragma once

#include "boatmotion/session_table.h"

/// What the attempts of an on-water test session hold: of the chosen attempt, `boatdata` is the
/// stroke data and `sprintdata` the sprint data.
namespace kavela {

/// The kinds of values among the stroke data, in the order in which they come first.
[[nodiscard]] std::vector<std::string> kindsIn(const differentGTdata& attempt);

/// The stroke data of one kind, or of all kinds for an empty one. The moment of a row is in seconds
/// from the first entry of the attempt. Entries have as many values as they were recorded with.
[[nodiscard]] SessionGrid strokeDataGrid(const differentGTdata& attempt, const std::string& kind);
[[nodiscard]] SessionGrid sprintDataGrid(const differentGTdata& attempt);

} // namespace kavela
