#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/team/charts/chart_data.h"

namespace kavela::desktop {

/// How far behind the fastest an athlete was from race to race, a line for each phase, and below
/// the penalty seconds of the same runs. The races stand in the order given.
[[nodiscard]] ChartContent seasonContent(const QString& title,
                                         const std::vector<SeasonRace>& races);

} // namespace kavela::desktop
