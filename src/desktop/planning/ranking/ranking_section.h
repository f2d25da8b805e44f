#pragma once

#include "planning/season_results.h"

#include <QWidget>

class QPushButton;
class QTableWidget;

namespace kavela::desktop {

class CellDelegate;
class SeriesChart;

/// The releases of the ranking list: a table to type in, and charts of position and points.
class RankingSection : public QWidget {
    Q_OBJECT

public:
    explicit RankingSection(QWidget* parent = nullptr);

    /// Shows the list of a season; nothing to edit for a null one.
    void show(const icfdataplanning_v1* ranking);

    [[nodiscard]] QTableWidget& table() const { return *m_table; }
    /// A release behind the last one, with its points open for typing.
    void addRelease();
    void removeCurrent();

signals:
    /// What is known of an entry is to be written into a row; one behind the last adds an entry.
    void entered(std::size_t row, const RankingEntry& entry);
    void removed(std::size_t row);

private:
    void makeTable();
    void take(int row, int column, const QString& typed);
    [[nodiscard]] RankingEntry typedEntry(int column, const QString& typed) const;

    QTableWidget* m_table;
    CellDelegate* m_cells;
    QPushButton* m_add;
    QPushButton* m_remove;
    SeriesChart* m_positions;
    SeriesChart* m_points;
    std::vector<RankingEntry> m_entries;
    bool m_isFilling = false;
};

} // namespace kavela::desktop
