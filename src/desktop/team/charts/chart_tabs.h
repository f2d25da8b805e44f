#pragma once

#include "desktop/team/charts/averages_model.h"
#include "desktop/team/season_model.h"

#include <QTabWidget>

class QCheckBox;

namespace kavela::desktop {

class ProgressionChart;
class SeasonChart;
class TeamChart;

/// The charts of an athlete, and the averages per phase.
class ChartTabs : public QTabWidget {
    Q_OBJECT

public:
    explicit ChartTabs(QWidget* parent = nullptr);

    /// Shows the results of an athlete (null for none), and the season or race chosen.
    void show(const QString& athlete, const mtCatsStruct* results,
              std::optional<SeasonPlace> place);

    [[nodiscard]] SeasonChart& seasonChart() const { return *m_season; }
    [[nodiscard]] ProgressionChart& progressionChart() const { return *m_progression; }
    /// The chart in front; null where there is none.
    [[nodiscard]] TeamChart* current() const;
    /// Saves the chart in front under a name that is asked for; throws FileError.
    void saveCurrent(const QString& folder);

signals:
    void raceClicked(const kavela::desktop::SeasonPlace& race);
    void saveRequested();

private:
    void showCharts();
    [[nodiscard]] QWidget* makeCorner();

    SeasonChart* m_season;
    ProgressionChart* m_progression;
    AveragesModel m_averages;
    QCheckBox* m_allSeasons = nullptr;
    QString m_athlete;
    std::optional<mtCatsStruct> m_results;
    std::optional<SeasonPlace> m_place;
};

} // namespace kavela::desktop
