#pragma once

#include "desktop/charts/chart_content.h"
#include "desktop/season/shown_season.h"
#include "desktop/shell/tables/column_model.h"
#include "performance/season_charts.h"

#include <QWidget>

#include <vector>

class QComboBox;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;
class Workspace;

/// An athlete's run of a phase, in the words of the table.
struct ProgressionRow {
    RaceResult race; ///< without its phases
    PhaseResult phase;
    std::string percentId; ///< empty where there is no percentage
    std::string splitsId;
    std::string key;
};

/// The way of an athlete through the races, in percent behind the winners or the fastest splits: as
/// a chart with a mark for each phase, and as a table of all runs.
class ProgressionPanel : public QWidget {
    Q_OBJECT

public:
    ProgressionPanel(Workspace& workspace, QWidget* parent = nullptr);

    void show(const SharedSeason& season, std::size_t athlete);
    using QWidget::show;

    /// Behind whom; by itself the one that tells more, until it is chosen.
    void choose(TrendOf of);
    [[nodiscard]] TrendOf of() const;
    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] const std::vector<ProgressionRow>& rows() const { return m_rows.rows(); }
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;
    /// Opens the run of the winner of the current row's phase.
    void openWinner();

signals:
    void placeRequested(const kavela::Place& place);

private:
    enum Series { Heats, FinalRuns, Semifinals, Others, SeriesCount };

    [[nodiscard]] static Column<ProgressionRow, std::string>
    percentColumn(const QString& title, std::optional<double> PhaseResult::*value);
    [[nodiscard]] static std::vector<Column<ProgressionRow, std::string>> columns();
    [[nodiscard]] static Series seriesOf(const std::string& phase);
    void makeLayout(Workspace& workspace);
    void connectParts();
    void showChart();
    void addPoints(ChartContent& content, const kavela::ProgressionChart& chart);
    void leaveOutEmpty(ChartContent& content);
    void markCurrent();
    [[nodiscard]] std::optional<Reason> whyAt(const QPoint& at) const;

    SharedSeason m_season;
    std::size_t m_athlete = 0;
    bool m_isChosen = false;                ///< behind whom
    std::vector<std::vector<int>> m_places; ///< of the table, by series and point
    std::vector<double> m_across;           ///< of each row; not finite for none
    ColumnModel<ProgressionRow, std::string> m_rows;
    QComboBox* m_of;
    SeriesChart* m_chart;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
