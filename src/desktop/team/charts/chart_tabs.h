#pragma once

#include "desktop/team/charts/averages_model.h"
#include "desktop/team/season_model.h"

#include <QTabWidget>

class QCheckBox;

namespace kavela::desktop {

class SeriesChart;

/// The charts of an athlete, and the averages per phase.
class ChartTabs : public QTabWidget {
    Q_OBJECT

public:
    explicit ChartTabs(QWidget* parent = nullptr);

    /// Shows the results of an athlete (null for none), and the season or race chosen.
    void show(const QString& athlete, const mtCatsStruct* results,
              std::optional<SeasonPlace> place);

    [[nodiscard]] SeriesChart& seasonChart() const { return *m_season; }
    [[nodiscard]] SeriesChart& progressionChart() const { return *m_progression; }
    /// The chart in front; null where there is none.
    [[nodiscard]] SeriesChart* current() const;
    /// Where charts are saved unless the user goes elsewhere.
    void setFolder(const QString& folder);
    /// Saves the chart in front under a name that is asked for.
    void saveCurrent();

signals:
    void raceClicked(const kavela::desktop::SeasonPlace& race);
    void saveRequested();
    void savingFailed(const QString& path, const QString& reason);

private:
    void connectCharts();
    void showCharts();
    [[nodiscard]] QWidget* makeCorner();

    SeriesChart* m_season;
    SeriesChart* m_progression;
    std::vector<SeasonPlace> m_seasonRaces; ///< by their place along the chart
    std::vector<SeasonPlace> m_progressed;  ///< by their series
    AveragesModel m_averages;
    QCheckBox* m_allSeasons = nullptr;
    QString m_athlete;
    std::optional<mtCatsStruct> m_results;
    std::optional<SeasonPlace> m_place;
};

} // namespace kavela::desktop
