#include "desktop/planning/body/measure_model.h"

#include "desktop/planning/body/typed_measures.h"
#include "desktop/shell/typed_number.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

MeasureModel::MeasureModel(std::vector<MeasureColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)) {}

/// A model that is reset closes the editor in a cell, so it is only where rows came or went.
void MeasureModel::show(std::vector<MeasureRow> rows) {
    std::ranges::stable_sort(rows, std::greater(),
                             [](const MeasureRow& row) { return row.date.seconds; });
    if (rows.size() != m_rows.size()) {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    if (!std::ranges::equal(rows, m_rows, {}, &MeasureRow::place, &MeasureRow::place))
        reorder(std::move(rows));
    else
        m_rows = std::move(rows);
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void MeasureModel::reorder(std::vector<MeasureRow> rows) {
    emit layoutAboutToBeChanged();
    const std::vector<MeasureRow> before = std::exchange(m_rows, std::move(rows));
    for (const QModelIndex& from : persistentIndexList()) {
        const std::size_t place = before[static_cast<std::size_t>(from.row())].place;
        changePersistentIndex(from, index(rowOf(place), from.column()));
    }
    emit layoutChanged();
}

int MeasureModel::rowOf(std::size_t place) const {
    const auto row = std::ranges::find(m_rows, place, &MeasureRow::place);
    return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

int MeasureModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int MeasureModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size()) + 1;
}

const MeasureColumn& MeasureModel::column(const QModelIndex& index) const {
    return m_columns[static_cast<std::size_t>(index.column() - 1)];
}

QString MeasureModel::text(const QModelIndex& index, bool isEdited) const {
    const MeasureRow& shown = row(index.row());
    if (index.column() == DateColumn)
        return QString::fromStdString(dayText(shown.date));
    const double value = shown.values[static_cast<std::size_t>(index.column() - 1)];
    return isEdited ? measureEdited(value) : measureShown(value);
}

QString MeasureModel::oddity(const QModelIndex& index) const {
    const MeasureRow& shown = row(index.row());
    if (index.column() == DateColumn)
        return oddityOf(shown.date);
    return oddityOf(shown.values[static_cast<std::size_t>(index.column() - 1)], column(index).most);
}

QVariant MeasureModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case Qt::EditRole:
        return text(index, true);
    case Qt::DisplayRole:
        return oddity(index).isEmpty() ? text(index, false) : marked(text(index, false));
    case Qt::ToolTipRole:
        return oddity(index);
    case Qt::TextAlignmentRole:
        return QVariant((index.column() == DateColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant MeasureModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == DateColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (section == DateColumn)
        return tr("Date");
    const MeasureColumn& shown = m_columns[static_cast<std::size_t>(section - 1)];
    return shown.unit.isEmpty() ? shown.title
                                : QStringLiteral("%1 (%2)").arg(shown.title, shown.unit);
}

Qt::ItemFlags MeasureModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isEditable = index.column() == DateColumn || column(index).isEditable;
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

bool MeasureModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || value.toString().trimmed() == text(index, true))
        return false;
    const MeasureRow before = row(index.row());
    try {
        if (index.column() == DateColumn)
            emit dateTyped(before.place, typedDate(value.toString(), before.date));
        else
            emit valueTyped(before.place, static_cast<std::size_t>(index.column() - 1),
                            typedMeasure(value.toString(), column(index).most));
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

} // namespace kavela::desktop
