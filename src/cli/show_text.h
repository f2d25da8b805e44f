#pragma once

#include "analysis/split_table.h"
#include "cli/console.h"

#include <string>

namespace kavela::cli {

/// What stands above a printed table.
struct RaceHeading {
    std::string race;   ///< title or event, session and place
    std::string course; ///< date, gates, water
};

[[nodiscard]] RaceHeading headingOf(const infodata031& info);

/// The table as lines of text: coloured where the terminal takes colours, cut to its width by
/// leaving out what matters least, plain and whole when piped.
[[nodiscard]] std::string tableText(const RaceHeading& heading, const SplitTable& table,
                                    const TableSettings& settings, const Terminal& terminal);

} // namespace kavela::cli
