#include "desktop/people/found_lines_view.h"

#include "desktop/people/person_delegate.h"
#include "desktop/shell/growth.h"
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
    : ColumnTable(lines, "lines", parent), m_lines(lines) {
    setItemDelegateForColumn(lines.whoseColumn(), new PersonDelegate(lines, *this));
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(false);
    keepOrder();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    horizontalHeader()->setStretchLastSection(true);
    connect(this, &QTableView::clicked, this, &FoundLinesView::openChoice);
}

void FoundLinesView::fitColumns() {
    resizeColumnsToContents();
    for (int column = 0; column < m_lines.remarkColumn(); ++column)
        setColumnWidth(column, std::min(columnWidth(column), grown(*this, WidestColumn)));
    // A choice brings results where there was none to measure.
    const int result = fontMetrics().horizontalAdvance("99. 999.99 (50)") + theme::Spacing;
    for (const int column : {m_lines.wasColumn(), m_lines.nowColumn()})
        setColumnWidth(column, std::max(columnWidth(column), result));
}

/// Where there is nothing to tick, Space opens the choice as other keys do.
void FoundLinesView::keyPressEvent(QKeyEvent* event) {
    const QModelIndex tick = currentIndex().siblingAtColumn(FoundLines::nameColumn());
    if (event->key() == Qt::Key_Space && !tick.flags().testFlag(Qt::ItemIsUserCheckable))
        return EditOrder::keyPressEvent(event);
    ColumnTable::keyPressEvent(event);
}

/// A click opens the list of people at once: one click to open, one to choose.
void FoundLinesView::openChoice(const QModelIndex& index) {
    if (index.column() != m_lines.whoseColumn() || !index.flags().testFlag(Qt::ItemIsEditable))
        return;
    edit(index);
    if (auto* const combo = qobject_cast<QComboBox*>(indexWidget(index)))
        combo->showPopup();
}

} // namespace kavela::desktop
