#pragma once

#include "page/race_on_page.h"

#include <string>

namespace kavela::page {

/// The part of a race: its heading, the athlete's runs, and the split table of those they competed
/// with; of a season only the athlete's own runs and the winners'.
[[nodiscard]] std::string racePart(const RaceOnPage& race, bool isOfSeason,
                                   const std::vector<PageFilm>& films);

/// "2026-05-16 · Riverside Park · 24 gates, 6 upstream"
[[nodiscard]] std::string raceLine(const RaceOnPage& race);

} // namespace kavela::page
