#pragma once

#include "desktop/shell/edit_order.h"
#include "desktop/shell/tables/row_model.h"

#include <functional>
#include <initializer_list>

class QAction;
class QPushButton;

namespace kavela::desktop {

class ColumnDelegate;
class KeptColumns;
class SortedRows;
class Workspace;

/// The view of every table: sorted by a click on a title, copied as text and saved as CSV, its
/// columns hidden and moved, its rows added with Insert and removed with Delete, its cells typed
/// one after the other. What a cell cannot take stays in it with the reason. Rows are told by their
/// places in the model, whatever the table is sorted by.
class ColumnTable : public EditOrder<QTableView> {
    Q_OBJECT

public:
    /// `name` is that of the object, and what the columns are remembered by.
    ColumnTable(RowModel& rows, const char* name, QWidget* parent = nullptr);

    /// Stands in place of the rows while there is none.
    void setEmptyText(const QString& text);
    [[nodiscard]] const QString& emptyText() const { return m_emptyText; }
    /// Sorts until the coach sorts otherwise.
    void sortBy(int column, Qt::SortOrder order);
    void setFilter(std::function<bool(int place)> isShown);
    /// These columns share the room; the others are as wide as what they hold.
    void stretch(std::initializer_list<int> columns);
    void stretchAll();
    /// As long as there is a row, one is the current one.
    void keepOneChosen();
    /// The order of the rows says something: no click sorts them.
    void keepOrder();
    /// The table is only looked at: no row is chosen, and the keyboard passes it by.
    void setOnlyShown();
    /// Enter in a cell goes on to the next row.
    void setGoesDown(bool goesDown) { m_goesDown = goesDown; }

    /// Rows can be added, by a key, the menu and what else triggers the action; `text` is what the
    /// menu says.
    QAction& setAdd(const QString& text, std::function<void()> add);
    /// The rows that are selected can be removed.
    QAction& setRemove(const QString& text,
                       std::function<void(const std::vector<int>& places)> remove);
    /// Another action for the menu, with its shortcut while the table has the focus.
    QAction& addCommand(const QString& text, const QKeySequence& keys, std::function<void()> act);
    /// What a click with the right button offers.
    void fillMenu(QMenu& menu);

    /// The current row; -1 for none.
    [[nodiscard]] int currentPlace() const;
    /// The selected rows, in the order of the screen.
    [[nodiscard]] std::vector<int> selectedPlaces() const;
    /// The rows that are shown, in the order of the screen.
    [[nodiscard]] std::vector<int> shownPlaces() const;
    /// Makes a row the only one that is chosen; in the column from before without one. None is
    /// chosen where the row is not shown, as below 0.
    void choose(int place, int column = -1);
    void edit(int place, int column);
    using EditOrder::edit;
    /// The row of a cell.
    [[nodiscard]] int placeAt(const QModelIndex& cell) const;
    /// The cell of a row as the view has it; invalid where the row is not shown.
    [[nodiscard]] QModelIndex cellAt(int place, int column) const;

    /// Shows the columns as they were left, and remembers them from now on.
    void remember(Workspace& workspace, const QString& key);
    /// What is typed in an open cell cannot be taken.
    void refuse(const QString& reason);
    /// The selected rows, or all where none is; a single cell alone without its title.
    [[nodiscard]] QString copiedText() const;
    [[nodiscard]] QString csv() const;

public slots:
    void copy();
    void saveCsv();

signals:
    /// Another row is the current one, or none is.
    void chosen();
    /// Other rows are shown, or in another order.
    void shownChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;

private:
    void makeHeader();
    void followRows();
    void chooseOne();
    void enable();
    void tickCurrent();
    [[nodiscard]] QAction* actionOf(const QKeyEvent& key) const;

    RowModel& m_rows;
    SortedRows* m_shown;
    ColumnDelegate* m_cells;
    KeptColumns* m_columns;
    QString m_emptyText;
    QAction* m_add = nullptr;
    QAction* m_remove = nullptr;
    bool m_keepsOneChosen = false;
    bool m_goesDown = false;
    bool m_isFollowing = false;  ///< it finds a row to be the current one
    bool m_isChosenLate = false; ///< another row became the current one while rows moved
    int m_removed = -1;          ///< where the current row was that went
    int m_row = 0;               ///< on the screen, over a reset
    int m_column = 0;
};

/// A button that does what an action does, says its key, and leaves the focus where it is.
[[nodiscard]] QPushButton* buttonFor(QAction& action, const QString& text, const char* name);

/// Remembers the columns of every table with a name in a window of this kind.
void rememberColumns(const QWidget& window, Workspace& workspace, const QString& kind);

} // namespace kavela::desktop
