#pragma once

#include "desktop/preview/report_preview.h"

#include <QList>

#include <optional>

namespace kavela::desktop {

class RaceDocument;
class SplitTableModel;

/// The reports of a race as it is shown now: the table with these columns of the model, in this
/// order, the report of the race, and where a run is selected, counted among the shown ones, its
/// sheet. They keep what they need and outlive the window.
[[nodiscard]] std::vector<NamedReport>
raceReports(const RaceDocument& document, const SplitTableModel& model, const QList<int>& columns,
            std::optional<std::size_t> selectedRun = std::nullopt);

} // namespace kavela::desktop
