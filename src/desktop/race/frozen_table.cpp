#include "desktop/race/frozen_table.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int WidestColumn = 240;
constexpr int CellPadding = 10;

void prepare(QTableView& view) {
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setSortingEnabled(true);
    view.setWordWrap(false);
    view.setShowGrid(false);
    view.setCornerButtonEnabled(false);
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + CellPadding);
    view.verticalHeader()->hide();
    view.horizontalHeader()->setHighlightSections(false);
    view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    view.horizontalHeader()->setSortIndicatorClearable(true);
}

} // namespace

FrozenTable::FrozenTable(int frozenColumns, QWidget* parent)
    : QTableView(parent), m_frozen(new QTableView(this)), m_frozenColumns(frozenColumns) {
    prepare(*this);
    prepare(*m_frozen);
    prepareFrozen();
}

void FrozenTable::prepareFrozen() {
    m_frozen->setFocusPolicy(Qt::NoFocus);
    m_frozen->setFrameShape(QFrame::NoFrame);
    m_frozen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_frozen->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->stackUnder(m_frozen);
    connect(m_frozen->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, m_frozen->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int size) {
                if (section < m_frozenColumns)
                    m_frozen->setColumnWidth(section, size);
                placeFrozen();
            });
    connect(m_frozen->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int size) {
                if (section < m_frozenColumns)
                    setColumnWidth(section, size);
            });
    horizontalHeader()->setSectionsMovable(true);
    connect(horizontalHeader(), &QHeaderView::sectionMoved, this, &FrozenTable::keepFrozenInFront);
    // One indicator over both headers: the last click decides.
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, m_frozen->horizontalHeader(),
            [this](int section, Qt::SortOrder order) {
                const QSignalBlocker blocker(m_frozen->horizontalHeader());
                m_frozen->horizontalHeader()->setSortIndicator(section, order);
            });
    connect(m_frozen->horizontalHeader(), &QHeaderView::sortIndicatorChanged, horizontalHeader(),
            [this](int section, Qt::SortOrder order) {
                const QSignalBlocker blocker(horizontalHeader());
                horizontalHeader()->setSortIndicator(section, order);
            });
}

/// A column dragged in front of those that stay would be under them: it goes behind them.
void FrozenTable::keepFrozenInFront(int column, int from, int to) {
    const bool isFrozen = column < m_frozenColumns;
    if (isFrozen != (to < m_frozenColumns)) {
        const QSignalBlocker blocker(horizontalHeader());
        horizontalHeader()->moveSection(to, isFrozen ? from : m_frozenColumns);
        viewport()->update();
    }
    emit columnsMoved();
}

void FrozenTable::setColumnShown(int column, bool isShown) {
    setColumnHidden(column, !isShown);
    if (column < m_frozenColumns)
        m_frozen->setColumnHidden(column, !isShown);
    placeFrozen();
}

void FrozenTable::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    m_frozen->setModel(model);
    m_frozen->setSelectionModel(selectionModel());
    connect(model, &QAbstractItemModel::modelReset, this, &FrozenTable::fitColumns);
    fitColumns();
}

void FrozenTable::fitColumns() {
    if (!model())
        return;
    resizeColumnsToContents();
    for (int column = 0; column < model()->columnCount(); ++column) {
        setColumnWidth(column, std::min(columnWidth(column) + CellPadding, WidestColumn));
        m_frozen->setColumnHidden(column, column >= m_frozenColumns || isColumnHidden(column));
        m_frozen->setColumnWidth(column, columnWidth(column));
    }
    placeFrozen();
}

void FrozenTable::placeFrozen() {
    int width = 0;
    for (int column = 0; column < m_frozenColumns; ++column)
        width += isColumnHidden(column) ? 0 : columnWidth(column);
    m_frozen->setGeometry(frameWidth(), frameWidth(), width,
                          viewport()->height() + horizontalHeader()->height());
    m_frozen->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
}

void FrozenTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    placeFrozen();
}

void FrozenTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (index.column() >= m_frozenColumns)
        QTableView::scrollTo(index, hint);
    else if (index.isValid())
        m_frozen->scrollTo(index, hint); // its rows move with ours
}

QModelIndex FrozenTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex current = QTableView::moveCursor(action, modifiers);
    // A cell that has moved below the columns that stay is scrolled out from under them.
    const int hidden = m_frozen->width() - visualRect(current).left();
    if (action == MoveLeft && current.column() >= m_frozenColumns && hidden > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
    return current;
}

} // namespace kavela::desktop
