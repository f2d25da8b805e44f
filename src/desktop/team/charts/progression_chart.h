#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/team/charts/chart_data.h"

namespace kavela::desktop {

/// The places of the races of a season that have a position in any phase: the series of
/// `progressionContent` in their order.
[[nodiscard]] std::vector<std::size_t> progressedRaces(const mtSeasonStruct& season);

/// The positions of the races of a season from phase to phase, first on top: a line for each race.
/// The chosen one, by its place in the season, is drawn stronger.
[[nodiscard]] ChartContent progressionContent(const QString& title, const mtSeasonStruct& season,
                                              std::optional<std::size_t> chosen);

} // namespace kavela::desktop
