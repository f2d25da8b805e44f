#include "desktop/people/found_lines_view.h"

#include "desktop/people/person_delegate.h"
#include "desktop/shell/theme.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int WidestColumn = 220;

} // namespace

FoundLinesView::FoundLinesView(FoundLines& lines, QWidget* parent)
    : EditOrder(parent), m_lines(lines) {
    setObjectName("lines");
    setModel(&lines);
    setItemDelegateForColumn(lines.whoseColumn(), new PersonDelegate(this));
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(this, &QTableView::clicked, this, &FoundLinesView::openChoice);
    connect(&lines, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_current = currentIndex().siblingAtColumn(FoundLines::nameColumn()).data().toString();
        m_column = currentIndex().column();
    });
    connect(&lines, &QAbstractItemModel::modelReset, this, &FoundLinesView::keepCurrent);
}

void FoundLinesView::fitColumns() {
    resizeColumnsToContents();
    for (int column = 0; column < m_lines.remarkColumn(); ++column)
        setColumnWidth(column, std::min(columnWidth(column), WidestColumn));
    // A choice brings results where there was none to measure.
    const int result = fontMetrics().horizontalAdvance("99. 999.99 (50)") + theme::Spacing;
    for (const int column : {m_lines.wasColumn(), m_lines.nowColumn()})
        setColumnWidth(column, std::max(columnWidth(column), result));
}

void FoundLinesView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex tick = currentIndex().siblingAtColumn(FoundLines::nameColumn());
    if (event->key() == Qt::Key_Space && tick.flags().testFlag(Qt::ItemIsUserCheckable)) {
        const bool isTaken = tick.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        m_lines.setData(tick, isTaken ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return;
    }
    EditOrder::keyPressEvent(event);
}

/// A click opens the list of people at once: one click to open, one to choose.
void FoundLinesView::openChoice(const QModelIndex& index) {
    if (index.column() != m_lines.whoseColumn() || !index.flags().testFlag(Qt::ItemIsEditable))
        return;
    edit(index);
    if (auto* const combo = qobject_cast<QComboBox*>(indexWidget(index)))
        combo->showPopup();
}

void FoundLinesView::keepCurrent() {
    const auto& lines = m_lines.lines();
    const auto same = std::ranges::find(lines, m_current, &FoundLine::name);
    const int row = same == lines.end() ? 0 : static_cast<int>(same - lines.begin());
    if (const QModelIndex index = m_lines.index(row, m_column); index.isValid())
        setCurrentIndex(index);
}

} // namespace kavela::desktop
