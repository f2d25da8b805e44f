#pragma once

#include "desktop/preview/report_preview.h"

#include <QList>

namespace kavela::desktop {

class RaceDocument;
class SplitTableModel;

/// The reports of a race as it is shown now: the table with these columns of the model, in this
/// order, and the report of the race. They keep what they need and outlive the window.
[[nodiscard]] std::vector<NamedReport>
raceReports(const RaceDocument& document, const SplitTableModel& model, const QList<int>& columns);

} // namespace kavela::desktop
