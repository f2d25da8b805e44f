#pragma once

#include "page/race_on_page.h"

#include <string>
#include <vector>

/// What stands in front of the races. Each part is empty where there is too little to tell.
namespace kavela::page {

/// All runs of the athlete in one table, each leading to its own part.
[[nodiscard]] std::string overviewPart(const std::vector<RaceOnPage>& races);

/// The way through the season against the winners.
[[nodiscard]] std::string progressPart(const std::vector<RaceOnPage>& races);

/// Where time is lost over all runs, and what to train.
[[nodiscard]] std::string seasonLossPart(const std::vector<RaceOnPage>& races,
                                         const PageChoice& choice);

} // namespace kavela::page
