#pragma once

#include <QSet>
#include <QTableView>

class QFrame;

namespace kavela::desktop {

/// A table whose first columns stay in view at the left and whose last ones at the right, while
/// those between them scroll. Of the first ones only the very first stays where the others would
/// leave less than half of those between them in view. The last ones stay as long as they stand at
/// the end, where the coach may have moved others, and as long as there is room between the sides.
class FrozenTable : public QTableView {
    Q_OBJECT

public:
    explicit FrozenTable(int frontColumns, int backColumns = 0, QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    /// Fits every column to its content, within reason; one that the coach has sized stays so.
    void fitColumns();
    /// Shows or hides a column, in every view.
    void setColumnShown(int column, bool isShown);
    /// The view over the first columns, and that over the last ones.
    [[nodiscard]] QTableView* frozenView() const { return m_front; }
    [[nodiscard]] QTableView* backView() const { return m_back; }
    /// The headers of all views.
    [[nodiscard]] QList<QHeaderView*> headers() const;
    /// Places the views anew once the columns stand in another order.
    void arrange();

    /// Of every view: one that lags behind would hold the others back as they scroll.
    void doItemsLayout() override;

signals:
    /// The coach moved a column.
    void columnsMoved();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;

private:
    void prepareOver(QTableView& view);
    void linkSorting();
    [[nodiscard]] QList<int> columnsAtTheBack() const;
    [[nodiscard]] int columnsToKeep() const;
    [[nodiscard]] bool isOver(const QTableView& view, int column) const;
    void takeWidth(int column, int before, int size);
    void place();
    void placeEdges();
    void showBetween(int column);
    void keepInPlace(int column, int from, int to);

    QTableView* m_front;
    QTableView* m_back;
    QFrame* m_frontEdge; ///< shown where columns are hidden under the view beside it
    QFrame* m_backEdge;
    int m_frontColumns;
    int m_backColumns;
    int m_kept;        ///< of the first columns: how many stay in view
    QSet<int> m_sized; ///< by the coach
    bool m_isFitting = false;
};

} // namespace kavela::desktop
