#pragma once

#include "desktop/season/season_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QComboBox;

namespace kavela::desktop {

class ColumnTable;
class Workspace;

/// Figures with their intervals as a chart and a table of the same rows: what is chosen in one is
/// marked in the other.
class FiguresPanel : public QWidget {
    Q_OBJECT

public:
    /// `name` is that of the table, and what the panel's places are remembered by.
    FiguresPanel(Workspace& workspace, const char* name, QWidget* parent = nullptr);

    /// Which figures are shown is chosen above them; the choice from before stays where it is still
    /// among them. Nothing is signalled.
    void offer(const QString& label, const QStringList& choices);
    [[nodiscard]] int choice() const;
    [[nodiscard]] QString choiceText() const;
    void choose(int choice);

    void show(const SharedSeason& season, FiguresShown shown);
    using QWidget::show;

    [[nodiscard]] const FiguresShown& shown() const { return m_shown; }
    [[nodiscard]] IntervalChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    /// The line of the current row; null for none.
    [[nodiscard]] const FigureLine* current() const;
    /// Why the number in a cell is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(int place, int column) const;

signals:
    void choiceChanged(int choice);

private:
    using Rows = ColumnModel<FigureLine, std::string>;

    [[nodiscard]] static Rows::Columns columnsOf(const FiguresShown& shown);
    void makeLayout(Workspace& workspace, const char* name);
    void markCurrent();
    [[nodiscard]] std::optional<std::size_t> markOf(int place) const;

    SharedSeason m_season;
    FiguresShown m_shown;
    std::vector<std::size_t> m_lines; ///< by mark of the chart
    Rows m_rows;
    QWidget* m_choiceRow;
    QComboBox* m_choice;
    IntervalChart* m_chart;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
