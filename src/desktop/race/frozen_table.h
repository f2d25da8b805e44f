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
    /// The view over the columns that stay.
    [[nodiscard]] QTableView* frozenView() const { return m_frozen; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void prepareFrozen();
    void placeFrozen();

    QTableView* m_frozen;
    int m_frozenColumns;
};

} // namespace kavela::desktop
