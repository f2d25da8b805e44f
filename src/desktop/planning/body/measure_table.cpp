#include "desktop/planning/body/measure_table.h"

#include "desktop/shell/cell_delegate.h"
#include "desktop/shell/choose_alone.h"
#include "desktop/shell/edit_order.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

MeasureTable::MeasureTable(std::vector<MeasureColumn> columns, const QString& addText,
                           QWidget* parent)
    : QWidget(parent),
      m_model(std::move(columns)),
      m_view(new EditOrder<QTableView>),
      m_empty(new QLabel),
      m_stack(new QStackedWidget),
      m_buttons(new QHBoxLayout),
      m_add(new QPushButton(addText)),
      m_remove(new QPushButton(tr("Remove"))) {
    m_add->setObjectName("add");
    m_add->setToolTip(tr("Insert"));
    m_remove->setObjectName("remove");
    m_remove->setToolTip(tr("Delete"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setMargin(theme::LargeSpacing);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    makeView();
    m_stack->addWidget(m_view);
    m_stack->addWidget(m_empty);
    m_buttons->setSpacing(theme::Spacing);
    m_buttons->addWidget(m_add);
    m_buttons->addWidget(m_remove);
    m_buttons->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(m_buttons);
    column->addWidget(m_stack, 1);
    connect(m_add, &QPushButton::clicked, this, &MeasureTable::addAsked);
    connect(m_remove, &QPushButton::clicked, this, [this] {
        if (const auto places = selected(); !places.empty())
            emit removalAsked(places);
    });
    setEmptyText({}, false);
}

void MeasureTable::makeView() {
    m_view->setModel(&m_model);
    connect(&m_model, &MeasureModel::refused, new CellDelegate(*m_view), &CellDelegate::refuse);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setShowGrid(false);
    m_view->setAlternatingRowColors(true);
    m_view->setWordWrap(false);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    QHeaderView* const header = m_view->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Stretch);
    int widest = 0;
    for (int column = 0; column < m_model.columnCount(); ++column)
        widest = std::max(
            widest, fontMetrics().horizontalAdvance(
                        m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()));
    header->setMinimumSectionSize(widest + theme::Spacing);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &MeasureTable::currentChanged);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MeasureTable::enable);
    const auto addKey = [this](Qt::Key key, QPushButton& button) {
        auto* const action = new QAction(button.text(), this);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, &button, &QPushButton::click);
        addAction(action);
    };
    addKey(Qt::Key_Insert, *m_add);
    addKey(Qt::Key_Delete, *m_remove);
}

void MeasureTable::show(std::vector<MeasureRow> rows) {
    const auto before = current();
    const int column = std::max(m_view->currentIndex().column(), 0);
    const int rowBefore = m_view->currentIndex().row();
    m_model.show(std::move(rows));
    int row = before ? m_model.rowOf(*before) : 0;
    if (row < 0)
        row = std::min(rowBefore, m_model.rowCount() - 1);
    if (const QModelIndex index = m_model.index(row, column);
        index.isValid() && index != m_view->currentIndex())
        chooseAlone(*m_view, index);
    enable();
}

void MeasureTable::setEmptyText(const QString& text, bool canAdd) {
    m_empty->setText(text);
    m_canAdd = canAdd;
    enable();
}

void MeasureTable::addButton(QPushButton* button) {
    m_buttons->insertWidget(m_buttons->count() - 1, button);
}

std::optional<std::size_t> MeasureTable::current() const {
    const QModelIndex index = m_view->currentIndex();
    return index.isValid() ? std::optional(m_model.row(index.row()).place) : std::nullopt;
}

void MeasureTable::choose(std::size_t place) {
    const QModelIndex index = m_model.index(m_model.rowOf(place), MeasureModel::DateColumn);
    chooseAlone(*m_view, index);
    m_view->scrollTo(index);
}

void MeasureTable::edit(std::size_t place) {
    choose(place);
    const bool hasValue = !m_model.columns().empty() && m_model.columns().front().isEditable;
    const QModelIndex index =
        m_model.index(m_model.rowOf(place), hasValue ? 1 : MeasureModel::DateColumn);
    m_view->setFocus();
    chooseAlone(*m_view, index);
    m_view->edit(index);
}

void MeasureTable::enable() {
    const bool isEmpty = m_model.rowCount() == 0;
    m_stack->setCurrentWidget(isEmpty ? static_cast<QWidget*>(m_empty) : m_view);
    m_add->setEnabled(m_canAdd);
    m_remove->setEnabled(!selected().empty());
}

std::vector<std::size_t> MeasureTable::selected() const {
    std::vector<std::size_t> places;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        places.push_back(m_model.row(index.row()).place);
    return places;
}

} // namespace kavela::desktop
