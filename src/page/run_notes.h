#pragma once

#include "page/race_on_page.h"

#include <cstddef>
#include <string>

/// What is noted of a run. Each part is empty where there is nothing of it.
namespace kavela::page {

/// The gates of the course in their sections with the penalties of a run, by its row of the table,
/// and what was noted of each.
[[nodiscard]] std::string penaltiesPart(const RaceOnPage& race, std::size_t row);

/// The upstream gates of a run by its place in RaceOnPage::own(): times, and what the winner's
/// differ.
[[nodiscard]] std::string upstreamPart(const RaceOnPage& race, std::size_t own);

/// What the coach noted as time lost against others.
[[nodiscard]] std::string notedLossesPart(const RaceOnPage& race, std::size_t row);

/// Comments of the sections and of the films, and tags with their moments.
[[nodiscard]] std::string commentsPart(const RaceOnPage& race, std::size_t row);

} // namespace kavela::page
