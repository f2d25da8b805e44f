#pragma once

#include <QTableView>

namespace kavela::desktop {

/// A table whose first columns stay in view while the others scroll.
class FrozenTable : public QTableView {
    Q_OBJECT

public:
    explicit FrozenTable(int frozenColumns, QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    /// Fits every column to its content, within reason.
    void fitColumns();
    /// Shows or hides a column; the columns that stay, in both views.
    void setColumnShown(int column, bool isShown);
    [[nodiscard]] int frozenColumns() const { return m_frozenColumns; }
    /// The view over the columns that stay.
    [[nodiscard]] QTableView* frozenView() const { return m_frozen; }

signals:
    /// The coach moved a column.
    void columnsMoved();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void prepareFrozen();
    void placeFrozen();
    void keepFrozenInFront(int column, int from, int to);

    QTableView* m_frozen;
    int m_frozenColumns;
};

} // namespace kavela::desktop
