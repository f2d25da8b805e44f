#pragma once

#include "desktop/charts/chart_content.h"

namespace kavela::desktop {

class LossState;

/// The stretches that lost time, the greatest loss first, and how much of all they are together.
[[nodiscard]] ChartContent paretoContent(const LossState& state);

/// The gap as it grows along the course, and the results of interest as lines.
[[nodiscard]] ChartContent growthContent(const LossState& state);

} // namespace kavela::desktop
