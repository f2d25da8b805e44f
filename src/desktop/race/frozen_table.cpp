#include "desktop/race/frozen_table.h"

#include "desktop/shell/growth.h"

#include <QFrame>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int WidestColumn = 240;
constexpr int RowPadding = 10;
constexpr int ColumnPadding = 4;
constexpr int LeastBetween = 120; ///< pixels of scrolling columns that the views leave free

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
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + RowPadding);
    view.verticalHeader()->hide();
    view.horizontalHeader()->setHighlightSections(false);
    view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    view.horizontalHeader()->setSortIndicatorClearable(true);
}

QFrame* edgeIn(QWidget& parent) {
    auto* edge = new QFrame(&parent);
    edge->setFrameShape(QFrame::VLine);
    edge->setFrameShadow(QFrame::Plain);
    edge->setForegroundRole(QPalette::Mid);
    edge->setAttribute(Qt::WA_TransparentForMouseEvents);
    return edge;
}

} // namespace

FrozenTable::FrozenTable(int frontColumns, int backColumns, QWidget* parent)
    : QTableView(parent),
      m_front(new QTableView(this)),
      m_back(new QTableView(this)),
      m_frontEdge(edgeIn(*this)),
      m_backEdge(edgeIn(*this)),
      m_frontColumns(frontColumns),
      m_backColumns(backColumns),
      m_kept(frontColumns) {
    prepare(*this);
    prepareOver(*m_front);
    prepareOver(*m_back);
    linkSorting();
    horizontalHeader()->setSectionsMovable(true);
    connect(horizontalHeader(), &QHeaderView::sectionMoved, this, &FrozenTable::keepInPlace);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &FrozenTable::takeWidth);
    // The views over the ends move with what is left to scroll.
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &FrozenTable::place);
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &FrozenTable::place);
}

QList<QHeaderView*> FrozenTable::headers() const {
    return {horizontalHeader(), m_front->horizontalHeader(), m_back->horizontalHeader()};
}

void FrozenTable::prepareOver(QTableView& view) {
    prepare(view);
    // A click on a column that stays leaves the keyboard with the table.
    view.setFocusPolicy(Qt::ClickFocus);
    view.setFocusProxy(this);
    view.setFrameShape(QFrame::NoFrame);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.raise(); // over our own cells
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, view.verticalScrollBar(),
            &QScrollBar::setValue);
    connect(&view, &QTableView::activated, this, &QTableView::activated);
    connect(view.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this, &view](int column, int before, int size) {
                // One that is hidden or shown again has no width of the coach's.
                if (before > 0 && size > 0 && isOver(view, column))
                    setColumnWidth(column, size);
            });
}

/// One indicator over all headers: the last click decides.
void FrozenTable::linkSorting() {
    for (QHeaderView* clicked : headers())
        for (QHeaderView* other : headers())
            if (other != clicked)
                connect(clicked, &QHeaderView::sortIndicatorChanged, other,
                        [other](int section, Qt::SortOrder order) {
                            const QSignalBlocker blocker(other);
                            other->setSortIndicator(section, order);
                        });
}

/// In the order of the screen: those of the last columns that nothing else stands behind.
QList<int> FrozenTable::columnsAtTheBack() const {
    const QHeaderView& header = *horizontalHeader();
    QList<int> columns;
    for (int place = header.count() - 1; place >= m_frontColumns; --place) {
        const int column = header.logicalIndex(place);
        if (isColumnHidden(column))
            continue;
        if (column < header.count() - m_backColumns)
            break;
        columns.prepend(column);
    }
    return columns;
}

int FrozenTable::columnsToKeep() const {
    const QList<int> back = columnsAtTheBack();
    int sides = 0;
    int between = 0;
    for (int column = 0; column < horizontalHeader()->count(); ++column) {
        const bool isSide = column < m_frontColumns || back.contains(column);
        (isSide ? sides : between) += columnWidth(column); // a hidden one has none
    }
    return 2 * (viewport()->width() - sides) >= between ? m_frontColumns : 1;
}

bool FrozenTable::isOver(const QTableView& view, int column) const {
    return &view == m_front ? column < m_kept : !view.isColumnHidden(column);
}

void FrozenTable::takeWidth(int column, int before, int size) {
    if (size > 0 && before > 0 && !m_isFitting)
        m_sized.insert(column);
    if (size > 0 && column < m_kept)
        m_front->setColumnWidth(column, size);
    if (size > 0 && !m_back->isColumnHidden(column))
        m_back->setColumnWidth(column, size);
    place();
}

/// A column dragged in front of those that stay would be under them: it goes behind them.
void FrozenTable::keepInPlace(int column, int from, int to) {
    const bool isFront = column < m_frontColumns;
    if (isFront != (to < m_frontColumns)) {
        const QSignalBlocker blocker(horizontalHeader());
        horizontalHeader()->moveSection(to, isFront ? from : m_frontColumns);
        viewport()->update();
    }
    arrange();
    emit columnsMoved();
}

void FrozenTable::setColumnShown(int column, bool isShown) {
    setColumnHidden(column, !isShown);
    arrange();
}

void FrozenTable::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    for (QTableView* view : {m_front, m_back}) {
        view->setModel(model);
        view->setSelectionModel(selectionModel());
    }
    connect(model, &QAbstractItemModel::modelReset, this, &FrozenTable::fitColumns);
    fitColumns();
}

void FrozenTable::fitColumns() {
    if (!model())
        return;
    const QScopedValueRollback fitting(m_isFitting, true);
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (isColumnHidden(column) || m_sized.contains(column))
            continue;
        resizeColumnToContents(column);
        setColumnWidth(column,
                       std::min(columnWidth(column) + ColumnPadding, grown(*this, WidestColumn)));
    }
    arrange();
}

void FrozenTable::arrange() {
    m_kept = columnsToKeep();
    const QList<int> back = columnsAtTheBack();
    QHeaderView& order = *m_back->horizontalHeader();
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
        const int column = horizontalHeader()->logicalIndex(place);
        order.moveSection(order.visualIndex(column), place);
        m_back->setColumnHidden(column, !back.contains(column));
        m_front->setColumnHidden(column, column >= m_kept || isColumnHidden(column));
        for (QTableView* view : {m_front, m_back})
            if (!view->isColumnHidden(column))
                view->setColumnWidth(column, columnWidth(column));
    }
    place();
}

void FrozenTable::doItemsLayout() {
    m_front->doItemsLayout();
    m_back->doItemsLayout();
    QTableView::doItemsLayout();
}

void FrozenTable::place() {
    if (columnsToKeep() != m_kept) {
        arrange();
        return;
    }
    const int height = viewport()->height() + horizontalHeader()->height();
    const int frontWidth = m_front->horizontalHeader()->length();
    const int backWidth = m_back->horizontalHeader()->length();
    m_front->setGeometry(frameWidth(), frameWidth(), frontWidth, height);
    const QList<int> back = columnsAtTheBack();
    const int free = viewport()->width() - frontWidth - backWidth;
    m_back->setVisible(!back.isEmpty() && free >= LeastBetween);
    if (m_back->isVisibleTo(this)) {
        const int left =
            std::min(viewport()->width() - backWidth, columnViewportPosition(back.constFirst()));
        m_back->setGeometry(frameWidth() + left, frameWidth(), backWidth, height);
    }
    for (QTableView* view : {m_front, m_back})
        view->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
    placeEdges();
}

void FrozenTable::placeEdges() {
    const QScrollBar& bar = *horizontalScrollBar();
    const int height = viewport()->height() + horizontalHeader()->height();
    m_frontEdge->setGeometry(m_front->geometry().right(), frameWidth(), 1, height);
    m_backEdge->setGeometry(m_back->x() - 1, frameWidth(), 1, height);
    m_frontEdge->setVisible(bar.value() > bar.minimum());
    m_backEdge->setVisible(m_back->isVisibleTo(this) && bar.value() < bar.maximum());
    m_frontEdge->raise();
    m_backEdge->raise();
}

void FrozenTable::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    place();
}

void FrozenTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid())
        return;
    if (index.column() < m_kept) {
        m_front->scrollTo(index, hint); // its rows move with ours
    } else if (m_back->isVisibleTo(this) && !m_back->isColumnHidden(index.column())) {
        m_back->scrollTo(index, hint);
    } else {
        QTableView::scrollTo(index, hint);
        showBetween(index.column());
    }
}

/// What the table takes for visible may lie under the columns that stay.
void FrozenTable::showBetween(int column) {
    const int left = columnViewportPosition(column);
    const int right = left + columnWidth(column);
    const int from = m_front->width();
    const int to = m_back->isVisibleTo(this) ? m_back->x() - frameWidth() : viewport()->width();
    QScrollBar& bar = *horizontalScrollBar();
    if (left < from)
        bar.setValue(bar.value() - (from - left));
    else if (right > to)
        bar.setValue(bar.value() + std::min(right - to, left - from));
}

} // namespace kavela::desktop
