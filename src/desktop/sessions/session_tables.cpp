#include "desktop/sessions/session_tables.h"

#include "desktop/sessions/balance_view.h"
#include "desktop/sessions/grid_model.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int UsualStep = 50;     // m
constexpr int LongestStep = 5000; // m

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

ColumnTable* SessionTables::addTable(const char* name, GridModel* model) {
    auto* view = new ColumnTable(*model, name);
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
void SessionTables::choose(const ColumnTable& table, const QModelIndex& index) {
    const auto page = static_cast<Page>(std::ranges::find(m_views, &table) - m_views.begin());
    const QScopedValueRollback choosing(m_choosing, &table);
    emit momentChosen(modelOf(page)->key(table.placeAt(index)));
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
    const QScopedValueRollback following(m_isFollowing, true);
    m_session = session;
    m_figures = figures;
    m_strokes->show(strokeGrid(session, figures));
    m_turns->show(turnGrid(session, figures));
    m_segments->show(segmentGrid(figures));
    m_balance->show(figures.sides, session.isBowKnown);
    showMeters();
    setTabText(StrokePage, tr("Strokes (%1)").arg(figures.strokes.size()));
    setTabText(TurnPage, tr("Turns (%1)").arg(figures.turns.size()));
}

void SessionTables::showMeters() {
    const QScopedValueRollback following(m_isFollowing, true);
    m_metersBegin->setText(m_session.marks.size() >= 2 ? tr("from the first mark")
                                                       : tr("from the start"));
    m_meters->show(metersGrid(metersOf(m_session, m_figures, m_step->value())));
}

std::vector<std::size_t> SessionTables::selectedEntries() const {
    std::vector<std::size_t> entries;
    const SessionGrid* const grid = gridOf(static_cast<Page>(currentIndex()));
    if (!grid)
        return entries;
    for (const int place : view(static_cast<Page>(currentIndex()))->selectedPlaces())
        if (const auto entry = grid->rows[static_cast<std::size_t>(place)].entry)
            entries.push_back(*entry);
    return entries;
}

GridModel* SessionTables::modelOf(Page page) const {
    switch (page) {
    case StrokePage:
        return m_strokes;
    case TurnPage:
        return m_turns;
    case SegmentPage:
        return m_segments;
    case MetersPage:
        return m_meters;
    case BalancePage:
        break;
    }
    return nullptr;
}

const SessionGrid* SessionTables::gridOf(Page page) const {
    const GridModel* const model = modelOf(page);
    return model ? &model->grid() : nullptr;
}

ColumnTable* SessionTables::view(Page page) const {
    return page == BalancePage ? nullptr : m_views[page];
}

void SessionTables::showCursorAt(double moment) {
    const QScopedValueRollback following(m_isFollowing, true);
    for (const Page page : {StrokePage, TurnPage, SegmentPage, MetersPage}) {
        ColumnTable* const table = view(page);
        const auto stroke = page == StrokePage ? strokeAt(m_figures, moment) : std::nullopt;
        const int place = stroke ? static_cast<int>(*stroke) : modelOf(page)->placeAtMoment(moment);
        if (table != m_choosing && place >= 0 && table->currentPlace() != place)
            table->choose(place, 0);
    }
}

} // namespace kavela::desktop
