#include "desktop/team/results_view.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/team/event_delegate.h"
#include "desktop/team/season_tree.h"
#include "desktop/team/team_document.h"
#include "desktop/team/team_edits.h"

#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr auto EditKeys = QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed;

constexpr int PhaseWidth = 98;

QLabel* quietLabel() {
    auto* label = new QLabel;
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

ResultsView::ResultsView(TeamDocument& document, QWidget* parent)
    : QWidget(parent), m_document(document), m_seasons(document), m_phases(document, m_seasons) {
    makeTree();
    makeRuns();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, 0, theme::Spacing, 0);
    column->setSpacing(0);
    column->addWidget(makeHeading());
    column->addWidget(m_tree, 1);
    column->addSpacing(theme::SmallSpacing);
    column->addWidget(m_hint);
    column->addSpacing(theme::Spacing);
    column->addWidget(m_race);
    column->addSpacing(theme::SmallSpacing);
    column->addWidget(m_runs);
    connect(&m_document, &TeamDocument::changed, this, &ResultsView::showDocument);
    connect(&m_seasons, &SeasonModel::seasonDropped, this,
            [this](std::size_t from, std::size_t before) {
                moveSeason(from, before > from ? before - 1 : before);
            });
}

QWidget* ResultsView::makeHeading() {
    m_name = new QLabel;
    m_name->setFont(theme::titleFont(*this));
    m_name->setTextFormat(Qt::PlainText);
    m_categories = new QTabBar;
    m_categories->setObjectName("categories");
    m_categories->setDrawBase(false);
    m_categories->setExpanding(false);
    m_categories->setFocusPolicy(Qt::TabFocus);
    takeTypingBeforePresses(*m_categories);
    connect(m_categories, &QTabBar::currentChanged, this, [this](int tab) {
        if (!m_isFilling && tab >= 0)
            showCategory(m_categories->tabText(tab).toStdString());
    });
    auto* heading = new QWidget;
    auto* row = new QHBoxLayout(heading);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_name, 1);
    row->addWidget(m_categories, 0, Qt::AlignBottom);
    return heading;
}

void ResultsView::makeTree() {
    m_tree = new SeasonTree;
    m_tree->setObjectName("seasons");
    m_tree->setModel(&m_seasons);
    takeTypingBeforePresses(*m_tree->viewport());
    connect(&m_seasons, &SeasonModel::refused, new EventDelegate(*m_tree), &CellDelegate::refuse);
    m_tree->setEditTriggers(EditKeys);
    m_tree->setUniformRowHeights(true);
    m_tree->setIndentation(theme::LargeSpacing - 2);
    m_tree->setAllColumnsShowFocus(false);
    m_tree->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_tree->setDragDropMode(QAbstractItemView::InternalMove);
    m_tree->setDropIndicatorShown(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->header()->setStretchLastSection(true);
    const QList<int> widths{84, 100, 42, 44, 54};
    for (int column = 0; column < SeasonModel::Columns; ++column)
        m_tree->header()->resizeSection(column, grown(*this, widths.value(column, PhaseWidth)));
    m_hint = quietLabel();
    m_hint->setObjectName("hint");
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (place() != m_place)
            showPlace();
    });
    connect(&m_seasons, &QAbstractItemModel::modelReset, this, &ResultsView::keepPlace);
    connect(m_tree, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { m_closed.insert(index.data().toString()); });
    connect(m_tree, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { m_closed.remove(index.data().toString()); });
}

void ResultsView::makeRuns() {
    m_race = new QLabel;
    m_race->setObjectName("race");
    m_race->setTextFormat(Qt::PlainText);
    m_runs = new ColumnTable(m_phases.rows(), "runs");
    m_runs->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_runs->setSelectionMode(QAbstractItemView::SingleSelection);
    m_runs->setShowGrid(true);
    m_runs->setAlternatingRowColors(false);
    m_runs->stretchAll();
    const int rows = static_cast<int>(std::size(team::Phases)) + 1;
    m_runs->setFixedHeight(rows * (fontMetrics().height() + theme::Spacing) + theme::Spacing);
}

void ResultsView::showAthlete(std::optional<std::size_t> athlete, const std::string& preferred) {
    const bool isSame = athlete == m_seasons.athlete();
    std::string category = preferred;
    if (athlete) {
        const auto& cats = m_document.athletes().at(*athlete).cats;
        const auto has = [&](const std::string& label) {
            return std::ranges::find(cats, label, &mtCatsStruct::cat) != cats.end();
        };
        if (!has(category) && isSame && has(m_seasons.category()))
            category = m_seasons.category();
        else if (!has(category))
            category = cats.empty() ? std::string() : cats.front().cat;
    }
    if (!isSame || category != m_seasons.category())
        m_place.reset();
    m_seasons.show(athlete, category);
    fillTabs();
}

void ResultsView::showCategory(const std::string& category) {
    showAthlete(m_seasons.athlete(), category);
}

void ResultsView::fillTabs() {
    m_isFilling = true;
    while (m_categories->count() > 0)
        m_categories->removeTab(0);
    m_name->clear();
    if (const auto athlete = m_seasons.athlete()) {
        const myTeamStruct& record = m_document.athletes()[*athlete];
        m_name->setText(QString::fromStdString(record.name));
        for (const mtCatsStruct& category : record.cats) {
            const int tab = m_categories->addTab(QString::fromStdString(category.cat));
            if (category.cat == m_seasons.category())
                m_categories->setCurrentIndex(tab);
        }
    }
    m_isFilling = false;
    // Filled before the window is seen, the bar keeps the height of none to itself.
    m_categories->updateGeometry();
    showHint();
}

/// An undone step may take the athlete or the category away.
void ResultsView::showDocument() {
    const auto athlete = m_seasons.athlete();
    if (athlete && *athlete >= m_document.athletes().size())
        showAthlete(std::nullopt, {});
    else if (athlete && !m_seasons.results())
        showAthlete(athlete, m_seasons.category());
    else
        fillTabs();
    showHeading();
    emit placeChanged();
}

void ResultsView::showHint() {
    QString hint;
    const mtCatsStruct* const results = m_seasons.results();
    if (m_document.athletes().empty())
        hint = tr("Nobody is in the team yet. Add the first athlete with Ctrl+N.");
    else if (!m_seasons.athlete())
        hint = tr("No athlete fits the search.");
    else if (!results)
        hint = tr("Choose the boat %1 races in: menu Team, “Add a category”.").arg(m_name->text());
    else if (results->seasons.empty())
        hint = tr("Add the first season with Ctrl+Shift+N, or drop a split file or a list of "
                  "results here to take results over.");
    else
        hint = tr("The first two seasons (✓) count for the categorization. Alt+Up, Alt+Down or "
                  "dragging changes the order.");
    m_hint->setText(hint);
    const bool hasSeasons = results && !results->seasons.empty();
    m_tree->setVisible(hasSeasons);
    m_hint->setAlignment(hasSeasons ? Qt::AlignLeft : Qt::AlignCenter);
    m_hint->setWordWrap(!hasSeasons);
    m_hint->setSizePolicy(QSizePolicy::Ignored,
                          hasSeasons ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    m_race->setVisible(hasSeasons);
    m_runs->setVisible(hasSeasons);
}

std::optional<SeasonPlace> ResultsView::place() const {
    const QModelIndex index = m_tree->currentIndex();
    return index.isValid() ? std::optional(m_seasons.placeOf(index)) : std::nullopt;
}

void ResultsView::choose(const SeasonPlace& place, int column) {
    m_tree->setCurrentIndex(m_seasons.indexOf(place, column));
}

/// Seasons are open but for those that the coach closed.
void ResultsView::openSeasons() {
    for (int row = 0; row < m_seasons.rowCount(); ++row) {
        const QModelIndex season = m_seasons.index(row, SeasonModel::TitleColumn);
        m_tree->setExpanded(season, !m_closed.contains(season.data().toString()));
    }
}

/// After the model was made anew the same place is chosen, or the nearest that is left.
void ResultsView::keepPlace() {
    openSeasons();
    SeasonPlace place = m_place.value_or(SeasonPlace{0, 0});
    if (place.race && !m_seasons.has(place))
        place.race = *place.race > 0 ? std::optional(*place.race - 1) : std::nullopt;
    if (!m_seasons.has(place))
        place = {place.season > 0 ? place.season - 1 : 0, std::nullopt};
    m_tree->setCurrentIndex(m_seasons.indexOf(place));
    showPlace();
}

void ResultsView::showPlace() {
    m_place = place();
    m_phases.show(m_place);
    showHeading();
    emit placeChanged();
}

/// What the runs below belong to.
void ResultsView::showHeading() {
    m_race->setText(tr("Choose a race to see and edit its runs."));
    if (const mtCatsStruct* const results = m_seasons.results(); results && m_place) {
        const mtSeasonStruct& season = results->seasons[m_place->season];
        if (m_place->race) {
            const mtRaceStruct& race = season.races[*m_place->race];
            m_race->setText(QString::fromStdString(race.event) + "  " +
                            QString::fromStdString(race.location) + "  " +
                            QString::number(season.year));
        }
    }
}

void ResultsView::edit(const QString& what, const std::function<void(mtCatsStruct&)>& change) {
    m_document.editResults(*athlete(), category(), what, change);
}

void ResultsView::addSeason(std::int64_t year) {
    if (!m_seasons.results())
        return;
    std::size_t at = 0;
    edit(tr("new season"), [&](mtCatsStruct& results) {
        const mtSeasonStruct* const season = &seasonIn(results, year);
        at = static_cast<std::size_t>(season - results.seasons.data());
    });
    choose({at, std::nullopt});
    m_tree->setFocus();
}

void ResultsView::addRace() {
    const mtCatsStruct* const results = m_seasons.results();
    if (!results || results->seasons.empty())
        return;
    const std::size_t season = m_place ? m_place->season : 0;
    const std::size_t at = results->seasons[season].races.size();
    edit(tr("new race"), [&](mtCatsStruct& changed) {
        mtRaceStruct race;
        race.event = "ICF";
        changed.seasons[season].races.push_back(std::move(race));
    });
    choose({season, at});
    m_tree->setFocus();
}

void ResultsView::moveSeason(std::size_t from, std::size_t to) {
    const mtCatsStruct* const results = m_seasons.results();
    if (!results || from == to || std::max(from, to) >= results->seasons.size())
        return;
    edit(tr("order of the seasons"),
         [&](mtCatsStruct& changed) { moveEntry(changed.seasons, from, to); });
    openSeasons();
    choose({to, std::nullopt});
}

void ResultsView::move(int way) {
    const mtCatsStruct* const results = m_seasons.results();
    if (!results || !m_place)
        return;
    const SeasonPlace from = *m_place;
    if (!from.race) {
        moveSeason(from.season, from.season + static_cast<std::size_t>(way));
        return;
    }
    const std::size_t to = *from.race + static_cast<std::size_t>(way);
    if (to >= results->seasons[from.season].races.size())
        return;
    edit(tr("order of the races"), [&](mtCatsStruct& changed) {
        moveEntry(changed.seasons[from.season].races, *from.race, to);
    });
    choose({from.season, to});
}

void ResultsView::removeCurrent() {
    if (m_runs->hasFocus()) {
        if (const int run = m_runs->currentPlace(); run >= 0)
            m_phases.removeRun(run);
        return;
    }
    if (!m_seasons.results() || !m_place)
        return;
    const SeasonPlace place = *m_place;
    const auto season = static_cast<std::ptrdiff_t>(place.season);
    if (place.race)
        edit(tr("removal of a race"), [&](mtCatsStruct& results) {
            auto& races = results.seasons[place.season].races;
            races.erase(races.begin() + static_cast<std::ptrdiff_t>(*place.race));
        });
    else
        edit(tr("removal of a season"), [&](mtCatsStruct& results) {
            results.seasons.erase(results.seasons.begin() + season);
        });
}

void ResultsView::editCurrent() {
    QAbstractItemView* view = m_tree;
    if (m_runs->hasFocus())
        view = m_runs;
    view->edit(view->currentIndex());
}

} // namespace kavela::desktop
