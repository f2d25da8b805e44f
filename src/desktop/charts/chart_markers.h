#pragma once

#include "desktop/charts/chart_colours.h"

#include <qcustomplot.h>

namespace kavela::desktop {

/// The marker of a series, so many pixels wide.
[[nodiscard]] QCPScatterStyle markerOf(const SeriesStyle& style, double size, bool isFull = true);
/// The dot of a run that nobody selected.
[[nodiscard]] QCPScatterStyle backgroundDot(const QPalette& palette, double size);

} // namespace kavela::desktop
