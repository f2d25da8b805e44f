#pragma once

#include "desktop/tables/list_columns.h"

#include <QList>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <string>

class QLabel;
class QTabWidget;

namespace kavela::desktop {

class ColumnTable;
class SeriesChart;
class Workspace;

/// A list as it stands: its rows, below them the chart of a column and what was refused.
class ListPanel : public QWidget {
    Q_OBJECT

public:
    enum Page { Chart, Refused };

    ListPanel(TableDocument& document, Workspace& workspace, QWidget* parent = nullptr);
    ~ListPanel() override;

    /// Shows the document as it is now, and what else is to be told of its file.
    void show(const QStringList& notes);
    using QWidget::show;

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& refused() const { return *m_refusedTable; }
    /// The row of the list with the cursor; none without one.
    [[nodiscard]] std::optional<std::size_t> currentRow() const;
    /// The column of the list with the cursor; none in that of the athletes or without a row.
    [[nodiscard]] std::optional<std::size_t> currentColumn() const;
    void chooseColumn(int column);
    /// Puts the cursor on a line of the list, and where the table has a column of it on that too;
    /// false where no row is that line alone.
    [[nodiscard]] bool chooseLine(std::int64_t line, std::optional<std::int64_t> column);

    /// Draws the column with the cursor from now on.
    void drawCurrent();
    void showPage(Page page);
    void setScale(ColourScale scale);
    [[nodiscard]] ColourScale scale() const { return m_scale; }

signals:
    /// The column with the cursor is to be sorted by: its title was clicked.
    void sortRequested(bool isDescending);
    /// A menu of the column with the cursor is wanted, on a title or a cell.
    void menuRequested(const QPoint& atGlobal, bool isOnTitle);
    void currentChanged();

private:
    void makeParts();
    void connectParts();
    void showRows();
    void showSorting();
    void showChartOf(std::size_t column);
    void chooseRow(std::size_t row);

    TableDocument& m_document;
    Workspace& m_workspace;
    ColumnModel<ListedRow> m_rows;
    ColumnModel<RefusedCell> m_refused;
    QList<qint64> m_lines; ///< by row that is shown, of the list; 0 for none
    ColourScale m_scale;
    std::string m_charted; ///< name of the column that is drawn
    QLabel* m_notes = nullptr;
    ColumnTable* m_table = nullptr;
    QTabWidget* m_tabs = nullptr;
    SeriesChart* m_chart = nullptr;
    ColumnTable* m_refusedTable = nullptr;
};

} // namespace kavela::desktop
