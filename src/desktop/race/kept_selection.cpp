#include "desktop/race/kept_selection.h"

#include "desktop/race/frozen_table.h"
#include "desktop/race/split_table_model.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <limits>

namespace kavela::desktop {

KeptSelection::KeptSelection(FrozenTable& table, SplitTableModel& model, RaceDocument& document,
                             QObject* parent)
    : QObject(parent), m_table(table), m_model(model) {
    connect(&document, &RaceDocument::runsMoved, this, &KeptSelection::renumber);
    connect(&model, &SplitTableModel::modelAboutToBeReset, this, &KeptSelection::notePlace);
    // The table, which was there first, has taken in the new rows by then.
    connect(&model, &SplitTableModel::modelReset, this, &KeptSelection::restore);
    connect(&model, &SplitTableModel::layoutChanged, this, &KeptSelection::listRows);
    const QItemSelectionModel* selection = table.selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &KeptSelection::remember);
    connect(selection, &QItemSelectionModel::currentChanged, this, &KeptSelection::noteCurrent);
}

void KeptSelection::remember() {
    if (m_isRestoring)
        return;
    m_selected.clear();
    for (const QModelIndex& row : m_table.selectionModel()->selectedRows())
        m_selected.push_back(m_model.keyOfRow(row.row()));
    listRows();
    emit changed();
}

void KeptSelection::noteCurrent(const QModelIndex& current) {
    if (m_isRestoring || !current.isValid())
        return;
    m_current = m_model.keyOfRow(current.row());
    m_currentColumn = current.column();
}

void KeptSelection::notePlace() {
    const int top = m_table.rowAt(0);
    m_top = top < 0 ? std::nullopt : std::optional(m_model.keyOfRow(top));
    m_topOffset = top < 0 ? 0 : -m_table.rowViewportPosition(top);
    m_left = m_table.horizontalScrollBar()->value();
}

void KeptSelection::renumber(const RunMoves& moves) {
    constexpr std::size_t Gone = std::numeric_limits<std::size_t>::max();
    const auto follow = [&](RowKey& key) {
        if (key.kind == RowKey::Kind::Run)
            key.number = key.number < moves.size() ? moves[key.number].value_or(Gone) : Gone;
        return key.number != Gone;
    };
    std::erase_if(m_selected, [&](RowKey& key) { return !follow(key); });
    if (m_current && !follow(*m_current))
        m_current.reset();
}

void KeptSelection::listRows() {
    m_rows.clear();
    for (const RowKey& key : m_selected)
        if (const int row = m_model.rowOfKey(key); row >= 0)
            m_rows.push_back(row);
}

void KeptSelection::restore() {
    const QScopedValueRollback restoring(m_isRestoring, true);
    listRows();
    QItemSelectionModel& selection = *m_table.selectionModel();
    for (const int row : m_rows)
        selection.select(m_model.index(row, 0),
                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const int current = m_current ? m_model.rowOfKey(*m_current) : -1;
    if (current >= 0)
        selection.setCurrentIndex(
            m_model.index(current, std::min(m_currentColumn, m_model.columnCount() - 1)),
            QItemSelectionModel::NoUpdate);
    restorePlace();
}

/// After the cell of the keyboard, which the table scrolls to.
void KeptSelection::restorePlace() {
    m_table.doItemsLayout(); // as far as the new rows reach
    const int top = m_top ? m_model.rowOfKey(*m_top) : -1;
    if (top >= 0)
        m_table.verticalScrollBar()->setValue(m_table.verticalHeader()->sectionPosition(top) +
                                              m_topOffset);
    m_table.horizontalScrollBar()->setValue(m_left);
}

} // namespace kavela::desktop
