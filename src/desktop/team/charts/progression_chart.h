#pragma once

#include "desktop/team/charts/chart_data.h"
#include "desktop/team/charts/team_chart.h"

namespace kavela::desktop {

/// The positions of the races of a season from phase to phase, first on top: a line for each race.
class ProgressionChart : public TeamChart {
    Q_OBJECT

public:
    using TeamChart::TeamChart;

    /// Shows the races of a season; `chosen` is drawn stronger.
    void show(const QString& title, const mtSeasonStruct& season, std::size_t place,
              std::optional<std::size_t> chosen);
    void showNothing(const QString& hint) { clear(hint); }

private:
    void addRace(const fullracess& race, const SeasonPlace& place, std::size_t slot, bool isChosen);
    void addAxes(std::int64_t last);
};

} // namespace kavela::desktop
