#pragma once

#include "desktop/team/charts/chart_data.h"
#include "desktop/team/charts/team_chart.h"

class QBarCategoryAxis;
class QLineSeries;

namespace kavela::desktop {

/// How far behind the fastest an athlete was from race to race, a line for each phase, and below
/// the penalty seconds of the same runs.
class SeasonChart : public TeamChart {
    Q_OBJECT

public:
    using TeamChart::TeamChart;

    /// Shows races in the order given.
    void show(const QString& title, const std::vector<SeasonRace>& races);

private:
    void addLines(const std::vector<SeasonRace>& races);
    void addPenalties(const std::vector<SeasonRace>& races);
    void addAxes(const std::vector<SeasonRace>& races);
    void hideDoubleMarkers();
    void tellOnHover(QLineSeries& line, const std::vector<SeasonRace>& races);
};

} // namespace kavela::desktop
