#pragma once

#include "desktop/season/shown_season.h"
#include "desktop/shell/tables/column_model.h"
#include "performance/season_compared.h"

#include <QWidget>

#include <vector>

class QComboBox;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;
class Workspace;

/// An athlete beside the others, in the few figures that matter.
struct ComparedAthlete {
    std::size_t athlete = 0; ///< of the season
    std::string name;
    std::size_t races = 0;
    ComparisonChart::Line behind;
    SeasonFigures figures;
    std::string phase; ///< that the median is of
};

/// The athletes of a team beside each other: what they were behind the winners year by year as a
/// chart, and the few figures that matter as a table.
class ComparisonPanel : public QWidget {
    Q_OBJECT

public:
    ComparisonPanel(Workspace& workspace, QWidget* parent = nullptr);

    void show(const SharedSeason& season);
    using QWidget::show;

    void choosePhase(const QString& phase);
    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    /// The athlete of the current row; none where there is none.
    [[nodiscard]] std::optional<std::size_t> current() const;
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

private:
    [[nodiscard]] static std::vector<Column<ComparedAthlete, std::size_t>> columns();
    void connectParts();
    void refresh();
    void showChart(const ComparisonChart& compared);
    [[nodiscard]] std::optional<Reason> whyAt(const QPoint& at) const;

    SharedSeason m_season;
    ComparisonChart m_compared;
    std::vector<std::size_t> m_drawn; ///< athletes, by series
    ColumnModel<ComparedAthlete, std::size_t> m_rows;
    QComboBox* m_phase;
    SeriesChart* m_chart;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
