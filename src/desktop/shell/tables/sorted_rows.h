#pragma once

#include <QSortFilterProxyModel>

#include <functional>

namespace kavela::desktop {

class RowModel;

/// The rows of a table as they are sorted and filtered. Numbers stand in their order, texts in that
/// of people; empty cells are last whichever way is sorted.
class SortedRows : public QSortFilterProxyModel {
    Q_OBJECT

public:
    SortedRows(RowModel& rows, QObject* parent);

    /// Shows the rows alone of whose places this is true; all without one.
    void setFilter(std::function<bool(int place)> isShown);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& a, const QModelIndex& b) const override;

private:
    RowModel& m_rows;
    std::function<bool(int place)> m_isShown;
};

} // namespace kavela::desktop
