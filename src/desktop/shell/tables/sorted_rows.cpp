#include "desktop/shell/tables/sorted_rows.h"

#include "common/folded_text.h"
#include "desktop/shell/tables/row_model.h"

namespace kavela::desktop {

namespace {

enum Rank { OfNumbers, OfTexts, OfNothing };

Rank rankOf(const QVariant& value) {
    if (!value.isValid())
        return OfNothing;
    return value.typeId() == QMetaType::Double ? OfNumbers : OfTexts;
}

} // namespace

SortedRows::SortedRows(RowModel& rows, QObject* parent)
    : QSortFilterProxyModel(parent), m_rows(rows) {
    setSourceModel(&rows);
}

void SortedRows::setFilter(std::function<bool(int place)> isShown) {
    m_isShown = std::move(isShown);
    invalidateFilter();
}

bool SortedRows::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
    return !m_isShown || m_isShown(m_rows.placeOf(row));
}

bool SortedRows::lessThan(const QModelIndex& a, const QModelIndex& b) const {
    const QVariant first = a.data(RowModel::SortRole);
    const QVariant second = b.data(RowModel::SortRole);
    const Rank rank = rankOf(first);
    if (rank != rankOf(second)) {
        const bool isBefore = rank < rankOf(second);
        return sortOrder() == Qt::AscendingOrder ? isBefore : !isBefore;
    }
    if (rank == OfNumbers)
        return first.toDouble() < second.toDouble();
    return rank == OfTexts &&
           isNaturallyBefore(first.toString().toStdString(), second.toString().toStdString());
}

} // namespace kavela::desktop
