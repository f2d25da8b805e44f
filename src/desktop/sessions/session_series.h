#pragma once

#include "desktop/charts/sensor_series.h"
#include "desktop/sessions/session_charts.h"

namespace kavela::desktop {

/// The curves of a measure, their moments counted from the beginning of the session. Values that
/// are not known are left out.
[[nodiscard]] std::vector<SensorSeries>
seriesFor(SessionMeasure measure, const EditedSession& session, const SessionFigures& figures);

/// The same as percent of the greatest value of each.
[[nodiscard]] std::vector<SensorSeries> normalized(std::vector<SensorSeries> series);

} // namespace kavela::desktop
