#include "desktop/sessions/grid_model.h"

#include "desktop/sessions/session_texts.h"

#include <cmath>

namespace kavela::desktop {

void GridModel::show(SessionGrid grid) {
    beginResetModel();
    m_grid = std::move(grid);
    endResetModel();
}

int GridModel::rowAt(double moment) const {
    int found = -1;
    double latest = -HUGE_VAL;
    for (int row = 0; row < rowCount(); ++row) {
        const double begin = m_grid.rows[static_cast<std::size_t>(row)].moment;
        if (begin > moment || begin < latest)
            continue;
        latest = begin;
        found = row;
    }
    return found;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_grid.rows.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_grid.columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const auto column = static_cast<std::size_t>(index.column());
    const Cell& cell = m_grid.rows[static_cast<std::size_t>(index.row())].cells[column];
    if (role == Qt::DisplayRole)
        return cellText(cell, m_grid.columns[column].decimals);
    if (role == Qt::TextAlignmentRole)
        return QVariant(
            Qt::AlignVCenter |
            (std::holds_alternative<std::string>(cell) ? Qt::AlignHCenter : Qt::AlignRight));
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const SessionColumn& column = m_grid.columns[static_cast<std::size_t>(section)];
    const QString title = QString::fromStdString(column.title);
    return column.unit.empty() ? title : title + "\n(" + QString::fromStdString(column.unit) + ')';
}

} // namespace kavela::desktop
