#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/shell/tables/column_model.h"
#include "vision/path_figures.h"

#include <vector>

namespace kavela::desktop {

/// The table of a path, a row for each frame.
[[nodiscard]] std::vector<Column<PathFigure>> pathColumns();

/// The speed along a path, with its uncertainty; what is missing for it otherwise.
[[nodiscard]] ChartContent speedContent(const std::vector<PathFigure>& figures, bool hasPlane,
                                        bool isScaleOnly);

} // namespace kavela::desktop
