#pragma once

#include "desktop/charts/chart_colours.h"

#include <QPointF>
#include <QString>

#include <optional>

namespace kavela::desktop {

/// One series as it stands beside the plot.
struct SeriesLabel {
    int id = 0; ///< what the chart knows the series by
    QString name;
    QString value;
    SeriesStyle style;
    std::optional<QPointF> end; ///< where the series ends, in the plot's coordinates
    bool onRight = false;       ///< the end is measured on the right-hand axis
    bool isHidden = false;
    bool isBar = false; ///< drawn as a filled field instead of a marker
};

} // namespace kavela::desktop
