#pragma once

#include "common/refused_line.h"
#include "splittaking/race_day/race_day.h"

#include <string_view>
#include <vector>

namespace kavela {

/// A start list as organisers write it and as it is pasted out of a table or a page.
struct StartList {
    std::vector<DayStart> starts; ///< in the order of starting, without ids and phases
    std::vector<RefusedLine> refused;
};

/// Reads a list whose fields are apart by semicolons, tabs or commas. Titles in its first line say
/// which column is which, in any order and among others; without titles they are bib, name,
/// category and start. A start is a time of day ("10:01:30"), or a number in an order; without
/// either, the order of the lines counts. A line without a name, with a bib that is none or that
/// another line has, or with a start of another kind than the first line's is refused.
[[nodiscard]] StartList parseStartList(std::string_view text);

/// "10:01", "10:01:30" or "9:05:07.5" in seconds since midnight; nothing for any other text.
[[nodiscard]] std::optional<double> timeOfDay(std::string_view text);
/// "10:01:30", with tenths where there are some.
[[nodiscard]] std::string timeOfDayText(double seconds);

/// The day with the starts of a list in a phase. A bib that starts in that phase already, or
/// without a bib the name, is the same boat: its line is corrected, and it keeps its film. Nothing
/// else goes. Starts stand in the order of their times, and where these are not known behind those
/// from before.
[[nodiscard]] RaceDay withStarts(RaceDay day, const StartList& list, std::string_view phase);

} // namespace kavela
