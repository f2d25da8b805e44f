#include "desktop/sessions/session_tables.h"

#include "desktop/sessions/balance_view.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/theme.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTableView>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int UsualStep = 50;     // m
constexpr int LongestStep = 5000; // m

/// Keys that are held, as in Shift and an arrow, select nothing more here.
void follow(QTableView& table, const QModelIndex& index) {
    table.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
    table.scrollTo(index);
}

} // namespace

SessionTables::SessionTables(QWidget* parent)
    : QTabWidget(parent),
      m_strokes(new GridModel(this)),
      m_turns(new GridModel(this)),
      m_segments(new GridModel(this)),
      m_meters(new GridModel(this)),
      m_balance(new BalanceView) {
    setDocumentMode(true);
    tabBar()->setDrawBase(false); // white on dark
    addTab(addTable("strokes", m_strokes), tr("Strokes"));
    addTab(addTable("turns", m_turns), tr("Turns"));
    addTab(addTable("segments", m_segments), tr("Segments"));
    addTab(makeMetersPage(), tr("Distance"));
    addTab(m_balance, tr("Left and right"));
}

QTableView* SessionTables::addTable(const char* name, GridModel* model) {
    auto* view = new QTableView;
    view->setObjectName(name);
    view->setModel(model);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setWordWrap(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::SmallSpacing);
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(view, &QTableView::clicked, this,
            [this, view](const QModelIndex& index) { choose(*view, index); });
    connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, view](const QModelIndex& index) {
                if (!m_isFollowing && index.isValid())
                    choose(*view, index);
            });
    m_views.push_back(view);
    return view;
}

/// The row stays as it was chosen: another one may have the same moment, or one beside it.
void SessionTables::choose(const QTableView& table, const QModelIndex& index) {
    const auto& model = static_cast<const GridModel&>(*table.model());
    const QScopedValueRollback choosing(m_choosing, &table);
    emit momentChosen(model.grid().rows[static_cast<std::size_t>(index.row())].moment);
}

QWidget* SessionTables::makeMetersPage() {
    m_step = new WholeBox;
    m_step->setObjectName("step");
    m_step->setRange(5, LongestStep);
    m_step->setSingleStep(UsualStep);
    m_step->setValue(UsualStep);
    m_step->setSuffix(tr(" m"));
    m_step->setKeyboardTracking(false);
    auto* label = new QLabel(tr("Values every"));
    label->setBuddy(m_step);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_step);
    m_metersBegin = new QLabel;
    m_metersBegin->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(m_metersBegin);
    row->addStretch();
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, theme::SmallSpacing, 0, 0);
    column->addLayout(row);
    column->addWidget(addTable("meters", m_meters));
    connect(m_step, &WholeBox::valueChanged, this, &SessionTables::showMeters);
    return page;
}

void SessionTables::show(const EditedSession& session, const SessionFigures& figures) {
    m_isFollowing = true;
    m_session = session;
    m_figures = figures;
    m_strokes->show(strokeGrid(session, figures));
    m_turns->show(turnGrid(session, figures));
    m_segments->show(segmentGrid(figures));
    m_balance->show(figures.sides, session.isBowKnown);
    showMeters();
    m_isFollowing = false;
    setTabText(StrokePage, tr("Strokes (%1)").arg(figures.strokes.size()));
    setTabText(TurnPage, tr("Turns (%1)").arg(figures.turns.size()));
}

void SessionTables::showMeters() {
    m_metersBegin->setText(m_session.marks.size() >= 2 ? tr("from the first mark")
                                                       : tr("from the start"));
    m_meters->show(metersGrid(metersOf(m_session, m_figures, m_step->value())));
}

std::vector<std::size_t> SessionTables::selectedEntries() const {
    std::vector<std::size_t> entries;
    const SessionGrid* const grid = gridOf(static_cast<Page>(currentIndex()));
    if (!grid)
        return entries;
    const QTableView* const table = view(static_cast<Page>(currentIndex()));
    for (const QModelIndex& index : table->selectionModel()->selectedRows())
        if (const auto entry = grid->rows[static_cast<std::size_t>(index.row())].entry)
            entries.push_back(*entry);
    return entries;
}

const SessionGrid* SessionTables::gridOf(Page page) const {
    switch (page) {
    case StrokePage:
        return &m_strokes->grid();
    case TurnPage:
        return &m_turns->grid();
    case SegmentPage:
        return &m_segments->grid();
    case MetersPage:
        return &m_meters->grid();
    case BalancePage:
        return nullptr;
    }
    return nullptr;
}

QTableView* SessionTables::view(Page page) const {
    return page == BalancePage ? nullptr : m_views[page];
}

void SessionTables::showCursorAt(double moment) {
    m_isFollowing = true;
    for (const Page page : {StrokePage, TurnPage, SegmentPage, MetersPage}) {
        QTableView* const table = view(page);
        const auto* const model = static_cast<const GridModel*>(table->model());
        const auto stroke = page == StrokePage ? strokeAt(m_figures, moment) : std::nullopt;
        const int row = stroke ? static_cast<int>(*stroke) : model->rowAt(moment);
        if (table != m_choosing && row >= 0 && table->currentIndex().row() != row)
            follow(*table, model->index(row, 0));
    }
    m_isFollowing = false;
}

} // namespace kavela::desktop
