#pragma once

#include "desktop/shell/tables/column_model.h"
#include "planning/planning_records.h"
#include "planning/season_results.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;

/// The races of a season, what its penalties come to, and how both went over time.
class RacesSection : public QWidget {
    Q_OBJECT

public:
    explicit RacesSection(QWidget* parent = nullptr);

    /// Shows the statistics of a season; nothing can be taken for a null one.
    void show(const statisticsplanning_v3* statistics);

    [[nodiscard]] ColumnTable& table() const { return *m_table; }

signals:
    void filesAsked();
    void folderAsked();

private:
    [[nodiscard]] QWidget* makeHead();

    ColumnModel<SeasonRace> m_model;
    ColumnTable* m_table;
    QLabel* m_summary;
    QPushButton* m_take;
    SeriesChart* m_penalties;
    SeriesChart* m_percents;
};

} // namespace kavela::desktop
