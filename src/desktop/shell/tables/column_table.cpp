#include "desktop/shell/tables/column_table.h"

#include "desktop/shell/alert_boxes.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/choose_alone.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/tables/column_delegate.h"
#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/tables/kept_columns.h"
#include "desktop/shell/tables/sorted_rows.h"
#include "desktop/shell/tables/table_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyleOptionHeader>

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

namespace kavela::desktop {

namespace {

QList<int> allOf(int count) {
    QList<int> all(count);
    std::iota(all.begin(), all.end(), 0);
    return all;
}

/// Room for the arrow is kept in the title that has it alone: tables are narrow, and titles many.
class SortHeader : public QHeaderView {
public:
    explicit SortHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
        connect(this, &QHeaderView::sortIndicatorChanged, this, [this] { resizeSections(); });
    }

protected:
    QSize sectionSizeFromContents(int section) const override {
        const QSize size = QHeaderView::sectionSizeFromContents(section);
        if (section == sortIndicatorSection() || !isSortIndicatorShown())
            return size;
        QStyleOptionHeader plain;
        initStyleOption(&plain);
        const QSize withoutArrow =
            style()->sizeFromContents(QStyle::CT_HeaderSection, &plain, {}, this);
        plain.sortIndicator = QStyleOptionHeader::SortDown;
        const QSize withArrow =
            style()->sizeFromContents(QStyle::CT_HeaderSection, &plain, {}, this);
        return {size.width() - withArrow.width() + withoutArrow.width(), size.height()};
    }
};

void tellListNotSaved(const std::string& reason, const Workspace* workspace, QWidget* over) {
    const Alert alert{"Failed to create file", reason};
    if (workspace)
        workspace->showAlert(alert, over);
    else
        AlertBoxes(over).show(alert);
}

} // namespace

ColumnTable::ColumnTable(RowModel& rows, const char* name, QWidget* parent)
    : EditOrder(parent),
      m_rows(rows),
      m_shown(new SortedRows(rows, this)),
      m_cells(new ColumnDelegate(*this)),
      m_columns(new KeptColumns(*this)) {
    setObjectName(name);
    setModel(m_shown);
    const auto& heads = rows.heads();
    const bool isTyped = std::ranges::any_of(heads, &ColumnHead::isTyped);
    setEditTriggers(isTyped ? DoubleClicked | EditKeyPressed | AnyKeyPressed
                            : EditTriggers(NoEditTriggers));
    setTabKeyNavigation(isTyped);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->setVisible(rows.hasRowTitles());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    makeHeader();
    takeTypingBeforePresses(*viewport());
    connect(&rows, &RowModel::refused, this, &ColumnTable::refuse);
    connect(&rows, &RowModel::followed, this, &ColumnTable::followRows);
    connect(&rows, &RowModel::columnsChanged, m_columns, &KeptColumns::follow);
    connect(m_shown, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_row = currentIndex().row();
        m_column = currentIndex().column();
    });
    connect(m_shown, &QAbstractItemModel::modelReset, this, &ColumnTable::followRows);
    connect(m_shown, &QAbstractItemModel::layoutChanged, this, &ColumnTable::shownChanged);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &ColumnTable::enable);
}

void ColumnTable::makeHeader() {
    auto* const header = new SortHeader(this);
    setHorizontalHeader(header);
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorClearable(true); // a third click: the order of the file
    setSortingEnabled(true);
    header->setSectionsMovable(true);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QHeaderView::sectionMoved, m_columns, &KeptColumns::keep);
    connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint& at) {
        QMenu menu(this);
        m_columns->fill(menu);
        menu.exec(header->mapToGlobal(at));
    });
}

void ColumnTable::setEmptyText(const QString& text) {
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

void ColumnTable::sortBy(int column, Qt::SortOrder order) {
    sortByColumn(column, order);
}

void ColumnTable::keepOrder() {
    setSortingEnabled(false);
    horizontalHeader()->setSectionsClickable(false); // nor is a column chosen
}

void ColumnTable::setOnlyShown() {
    keepOrder();
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setAlternatingRowColors(false);
}

void ColumnTable::setFilter(std::function<bool(int place)> isShown) {
    {
        const QScopedValueRollback following(m_isFollowing, true);
        m_shown->setFilter(std::move(isShown));
    }
    followRows();
}

void ColumnTable::stretch(std::initializer_list<int> columns) {
    for (const int column : columns)
        horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

/// None so narrow that its title could not be read.
void ColumnTable::stretchAll() {
    QHeaderView* const header = horizontalHeader();
    int widest = 0;
    for (int column = 0; column < m_rows.columnCount(); ++column)
        widest = std::max(widest, header->sectionSizeHint(column));
    header->setMinimumSectionSize(widest);
    header->setSectionResizeMode(QHeaderView::Stretch);
}

void ColumnTable::keepOneChosen() {
    m_keepsOneChosen = true;
    chooseOne();
}

/// Where the current row goes, the one below it is to be the current one. This comes before the
/// selection knows of it.
void ColumnTable::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
    const int current = currentIndex().row();
    if (m_removed < 0 && current >= first && current <= last)
        m_removed = first;
    else if (m_removed > last)
        m_removed -= last - first + 1;
    EditOrder::rowsAboutToBeRemoved(parent, first, last);
}

/// One signal, however many steps it took the rows to get there.
void ColumnTable::followRows() {
    const int before = currentPlace();
    {
        const QScopedValueRollback following(m_isFollowing, true);
        chooseOne();
    }
    const bool isOther = std::exchange(m_isChosenLate, false);
    enable();
    if (isOther || before != currentPlace() || before < 0)
        emit chosen();
    emit shownChanged();
    viewport()->update(); // the words where there is no row
}

void ColumnTable::chooseOne() {
    if (const int removed = std::exchange(m_removed, -1); removed >= 0 && m_shown->rowCount() > 0) {
        const int row = std::min(removed, m_shown->rowCount() - 1);
        chooseAlone(*this, m_shown->index(row, std::max(currentIndex().column(), 0)));
    }
    if (!m_keepsOneChosen || currentIndex().isValid() || m_shown->rowCount() == 0)
        return;
    const int row = std::clamp(m_row, 0, m_shown->rowCount() - 1);
    const int column = std::clamp(m_column, 0, m_shown->columnCount() - 1);
    chooseAlone(*this, m_shown->index(row, column));
}

void ColumnTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    EditOrder::currentChanged(current, previous);
    if (m_isFollowing || m_rows.isFollowing())
        m_isChosenLate = true;
    else if (current.row() != previous.row() || current.isValid() != previous.isValid())
        emit chosen();
}

QAction& ColumnTable::setAdd(const QString& text, std::function<void()> add) {
    m_add = &addCommand(text, Qt::Key_Insert, std::move(add));
    return *m_add;
}

QAction& ColumnTable::setRemove(const QString& text,
                                std::function<void(const std::vector<int>& places)> remove) {
    m_remove = &addCommand(text, Qt::Key_Delete, [this, remove = std::move(remove)] {
        if (const auto places = selectedPlaces(); !places.empty())
            remove(places);
    });
    enable();
    return *m_remove;
}

QAction& ColumnTable::addCommand(const QString& text, const QKeySequence& keys,
                                 std::function<void()> act) {
    auto* const action = new QAction(text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, std::move(act));
    addAction(action);
    return *action;
}

void ColumnTable::enable() {
    if (m_remove)
        m_remove->setEnabled(selectionModel()->hasSelection());
}

int ColumnTable::placeAt(const QModelIndex& cell) const {
    return m_rows.placeOf(m_shown->mapToSource(cell).row());
}

int ColumnTable::currentPlace() const {
    return placeAt(currentIndex());
}

std::vector<int> ColumnTable::selectedPlaces() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        rows.push_back(index.row());
    std::ranges::sort(rows);
    const auto repeated = std::ranges::unique(rows);
    rows.erase(repeated.begin(), repeated.end());
    for (int& row : rows)
        row = placeAt(m_shown->index(row, 0));
    return rows;
}

std::vector<int> ColumnTable::shownPlaces() const {
    std::vector<int> places;
    for (int row = 0; row < m_shown->rowCount(); ++row)
        places.push_back(placeAt(m_shown->index(row, 0)));
    return places;
}

QModelIndex ColumnTable::cellAt(int place, int column) const {
    return m_shown->mapFromSource(m_rows.index(m_rows.rowAt(place), column));
}

void ColumnTable::choose(int place, int column) {
    const QModelIndex index =
        cellAt(place, column < 0 ? std::max(currentIndex().column(), 0) : column);
    if (!index.isValid())
        return selectionModel()->clear();
    chooseAlone(*this, index);
    scrollTo(index);
}

void ColumnTable::edit(int place, int column) {
    setFocus();
    choose(place, column);
    EditOrder::edit(currentIndex());
}

void ColumnTable::refuse(const QString& reason) {
    m_cells->refuse(reason);
}

void ColumnTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    EditOrder::closeEditor(editor, hint);
    const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
    if (m_goesDown && hint == QAbstractItemDelegate::SubmitModelCache && below.isValid())
        setCurrentIndex(below);
}

/// The keys of the table come before those of its window while it has the focus.
QAction* ColumnTable::actionOf(const QKeyEvent& key) const {
    for (QAction* const action : actions())
        if (action->shortcut() == QKeySequence(key.keyCombination()))
            return action;
    return nullptr;
}

bool ColumnTable::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && state() != EditingState) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.matches(QKeySequence::Copy) || actionOf(key)) {
            event->accept();
            return true;
        }
    }
    return EditOrder::event(event);
}

void ColumnTable::keyPressEvent(QKeyEvent* event) {
    if (state() == EditingState) // what the open cell has no use for
        return EditOrder::keyPressEvent(event);
    if (QAction* const action = actionOf(*event))
        return action->trigger();
    if (event->matches(QKeySequence::Copy))
        return copy();
    if (event->key() == Qt::Key_Space)
        return tickCurrent();
    EditOrder::keyPressEvent(event);
}

/// Of the whole row: which of its cells has the cursor does not matter.
void ColumnTable::tickCurrent() {
    for (int column = 0; column < m_shown->columnCount(); ++column) {
        const QModelIndex cell = currentIndex().siblingAtColumn(column);
        if (!cell.flags().testFlag(Qt::ItemIsUserCheckable))
            continue;
        const bool isTicked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        m_shown->setData(cell, isTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        return;
    }
}

void ColumnTable::paintEvent(QPaintEvent* event) {
    EditOrder::paintEvent(event);
    if (m_shown->rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = theme::LargeSpacing;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void ColumnTable::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    fillMenu(menu);
    menu.exec(event->globalPos());
}

/// A command of the table may have the key for copying: what is selected has none then.
void ColumnTable::fillMenu(QMenu& menu) {
    menu.addActions(actions());
    menu.addSeparator();
    QAction* const copying = menu.addAction(tr("&Copy"), this, &ColumnTable::copy);
    const auto copies = [](const QAction* action) {
        return action->shortcut() == QKeySequence(QKeySequence::Copy);
    };
    if (std::ranges::none_of(actions(), copies))
        copying->setShortcut(QKeySequence::Copy);
    else
        copying->setText(tr("&Copy what is selected"));
    menu.addAction(tr("&Save as CSV…"), this, &ColumnTable::saveCsv);
    m_columns->fill(*menu.addMenu(tr("C&olumns")));
}

void ColumnTable::remember(Workspace& workspace, const QString& key) {
    m_columns->remember(workspace, key);
}

QString ColumnTable::copiedText() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selectionBehavior() != SelectRows && selected.size() == 1)
        return selected.constFirst().data(Qt::EditRole).toString();
    QList<int> rows;
    QList<int> columns = shownColumns(*this);
    for (const QModelIndex& index : selected)
        if (!rows.contains(index.row()))
            rows.append(index.row());
    std::ranges::sort(rows);
    if (selectionBehavior() != SelectRows && !rows.isEmpty())
        columns.removeIf([&](int column) {
            return std::ranges::none_of(
                selected, [&](const QModelIndex& index) { return index.column() == column; });
        });
    return tableAsText(*m_shown, rows.isEmpty() ? allOf(m_shown->rowCount()) : rows, columns,
                       clipboardTable(), m_rows.hasRowTitles());
}

QString ColumnTable::csv() const {
    return tableAsText(*m_shown, allOf(m_shown->rowCount()), shownColumns(*this), fileTable(),
                       m_rows.hasRowTitles());
}

void ColumnTable::copy() {
    QApplication::clipboard()->setText(copiedText());
}

void ColumnTable::saveCsv() {
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the table"), {},
                                                      tr("Semicolon-separated text (*.csv)"));
    if (path.isEmpty())
        return;
    disk::writeAwaited(*this, path.toStdU16String(), csv().toStdString(),
                       [this](const std::exception_ptr& fault) {
                           if (fault)
                               tellListNotSaved(causeOf(fault), m_columns->workspace(), this);
                       });
}

QPushButton* buttonFor(QAction& action, const QString& text, const char* name) {
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(action.shortcut().toString(QKeySequence::NativeText));
    button->setFocusPolicy(Qt::TabFocus);
    button->setEnabled(action.isEnabled());
    QObject::connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    QObject::connect(&action, &QAction::changed, button,
                     [button, &action] { button->setEnabled(action.isEnabled()); });
    return button;
}

void rememberColumns(const QWidget& window, Workspace& workspace, const QString& kind) {
    for (ColumnTable* const table : window.findChildren<ColumnTable*>())
        if (!table->objectName().isEmpty()) // which several may be
            table->remember(workspace, kind + "/columns/" + table->objectName());
}

} // namespace kavela::desktop
