#pragma once

#include "page/race_on_page.h"

#include <cstddef>
#include <string>

namespace kavela::page {

/// The part of one run of the athlete, by its place in RaceOnPage::own(): its figures, the gap
/// along the course, its splits, penalties, losses, upstream gates, what was noted, and its films.
[[nodiscard]] std::string runPart(const RaceOnPage& race, std::size_t own,
                                  const std::vector<PageFilm>& films);

/// What a run is linked by within the page: "r0-31".
[[nodiscard]] std::string runAnchor(const RaceOnPage& race, std::size_t own);

/// One film with its picture; where the film is missing its name is told all the same.
[[nodiscard]] std::string filmPart(const PageFilm& film);

} // namespace kavela::page
