#include "desktop/team/charts/averages_model.h"

#include "desktop/shell/shown_number.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

enum Column { ScopeColumn, PhaseColumn, WholeColumn, FirstShareColumn };
constexpr int Shares = 5;
constexpr int FirstSplitColumn = FirstShareColumn + Shares;

QString percent(double value) {
    return shownNumber(value, 1) + " %";
}

/// Percentages by split have that of the whole run behind them, where it is known.
bool hasWhole(const mtAverageDataStruct& average) {
    return average.per.size() > average.peraccu.size();
}

std::size_t splitsOf(const mtAverageDataStruct& average) {
    return average.per.size() - (hasWhole(average) ? 1 : 0);
}

} // namespace

void AveragesModel::show(const mtSeasonStruct* season, const mtCatsStruct* category) {
    beginResetModel();
    m_rows.clear();
    m_splits = 0;
    if (season)
        for (const mtAverageDataStruct& average : season->aves)
            m_rows.push_back({QString::number(season->year), average});
    if (category)
        for (const mtAverageDataStruct& average : category->aves)
            m_rows.push_back({tr("All seasons"), average});
    for (const Row& row : m_rows)
        m_splits = std::max(m_splits, splitsOf(row.average));
    endResetModel();
}

int AveragesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int AveragesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : FirstSplitColumn + static_cast<int>(m_splits);
}

QString AveragesModel::text(const Row& row, int column) const {
    const mtAverageDataStruct& average = row.average;
    if (column == ScopeColumn)
        return row.scope;
    if (column == PhaseColumn)
        return QString::fromStdString(average.phase);
    if (column == WholeColumn)
        return hasWhole(average) ? percent(average.per.back()) : QString();
    if (column < FirstSplitColumn) {
        const auto share = static_cast<std::size_t>(column - FirstShareColumn);
        return share < average.pendis.size() ? percent(average.pendis[share]) : QString();
    }
    const auto split = static_cast<std::size_t>(column - FirstSplitColumn);
    return split < splitsOf(average) ? percent(average.per[split]) : QString();
}

QVariant AveragesModel::data(const QModelIndex& index, int role) const {
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return text(row, index.column());
    if (role == Qt::TextAlignmentRole && index.column() >= WholeColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant AveragesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section >= WholeColumn ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && section >= FirstShareColumn && section < FirstSplitColumn)
        return tr("Share of the runs with so many penalty seconds");
    if (role != Qt::DisplayRole)
        return {};
    if (section >= FirstSplitColumn)
        return tr("S%1").arg(section - FirstSplitColumn + 1);
    return QStringList{tr("Season"), tr("Phase"), tr("Behind"),    tr("Clean"),
                       tr("2 s"),    tr("4 s"),   tr("6 to 48 s"), tr("50 s and more")}
        .value(section);
}

} // namespace kavela::desktop
