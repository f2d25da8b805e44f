#pragma once

#include "desktop/shell/tables/column_model.h"
#include "planning/season_results.h"

#include <QWidget>

class QAction;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;

/// The releases of the ranking list: a table to type in, and charts of position and points.
class RankingSection : public QWidget {
    Q_OBJECT

public:
    explicit RankingSection(QWidget* parent = nullptr);

    /// Shows the list of a season; nothing to edit for a null one.
    void show(const icfdataplanning_v1* ranking);

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    /// A release behind the last one, with its points open for typing.
    void addRelease();
    void removeCurrent();

signals:
    /// What is known of an entry is to be written into a row; one behind the last adds an entry.
    void entered(std::size_t row, const RankingEntry& entry);
    void removed(std::size_t row);

private:
    [[nodiscard]] std::vector<Column<RankingEntry>> columns();

    ColumnModel<RankingEntry> m_model;
    ColumnTable* m_table;
    QAction& m_add;
    SeriesChart* m_positions;
    SeriesChart* m_points;
};

} // namespace kavela::desktop
