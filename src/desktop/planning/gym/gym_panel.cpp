#include "desktop/planning/gym/gym_panel.h"

#include "common/folded_text.h"
#include "desktop/charts/series_chart.h"
#include "desktop/planning/body/measure_columns.h"
#include "desktop/planning/body/measures.h"
#include "desktop/planning/gym/exercise_table.h"
#include "desktop/planning/gym/gym_rows.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_panel.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace kavela::desktop {

namespace {

std::string foldedName(const QString& name) {
    return folded(name.toStdString());
}

/// A column of what the exercises of a session come to.
Column<gymdataplanning_v1> totalColumn(const QString& title, const QString& unit,
                                       double (*total)(const GymTotals&)) {
    return {.title = title,
            .unit = unit,
            .kind = ColumnKind::Number,
            .show = [total](const gymdataplanning_v1& session) {
                return measureCell(total(gymTotals(session)), std::numeric_limits<double>::max());
            }};
}

} // namespace

ChartContent gymChart(const athletesplanning_v6& athlete, const QString& exercise) {
    ChartContent content;
    content.title = exercise;
    content.subtitle = GymPanel::tr("All seasons, in kilograms");
    content.across = ChartContent::Across::Date;
    content.yTitle = GymPanel::tr("kg");
    ChartSeries maximum{GymPanel::tr("Maximum"), {}, ChartSeries::Form::LineAndPoints, 0};
    ChartSeries weight{GymPanel::tr("Weight"), {}, ChartSeries::Form::LineAndPoints, 1};
    for (const GymLift& lift : gymHistory(athlete, exercise.toStdString())) {
        if (lift.maxweight > 0)
            maximum.points.emplace_back(lift.date.seconds, lift.maxweight);
        if (lift.weight > 0)
            weight.points.emplace_back(lift.date.seconds, lift.weight);
    }
    content.series = {std::move(maximum), std::move(weight)};
    return content;
}

GymPanel::GymPanel(PlanningDocument& document, const DiagnosticLog& log, Clock clock,
                   QWidget* parent)
    : SeasonPanel(document, parent),
      m_clock(std::move(clock)),
      m_model({dateColumn<gymdataplanning_v1>(
                   [this](std::size_t place, ReferenceDate date) { moveSession(place, date); }),
               totalColumn(
                   tr("Exercises"), {},
                   [](const GymTotals& totals) { return static_cast<double>(totals.exercises); }),
               totalColumn(tr("Tonnage"), tr("kg"),
                           [](const GymTotals& totals) { return totals.tonnage; })}),
      m_sessions(new ColumnTable(m_model, "sessions")),
      m_exercises(new ExerciseTable(log)),
      m_names(new QComboBox),
      m_chart(new SeriesChart) {
    m_names->setObjectName("exercise");
    m_names->setAccessibleName(tr("Exercise of the chart"));
    m_names->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    makeParts(makeSessions());
    connectExercises();
}

void GymPanel::makeParts(QWidget* sessions) {
    auto* const history = new QWidget;
    auto* const column = new QVBoxLayout(history);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->setSpacing(theme::Spacing);
    auto* const choice = new QHBoxLayout;
    choice->setSpacing(theme::Spacing);
    auto* const label = new QLabel(tr("&History of"));
    label->setBuddy(m_names);
    choice->addWidget(label);
    choice->addWidget(m_names);
    choice->addStretch();
    column->addLayout(choice);
    column->addWidget(m_chart, 1);
    auto* const right = new QSplitter(Qt::Vertical);
    right->addWidget(m_exercises);
    right->addWidget(history);
    right->setChildrenCollapsible(false);
    auto* const whole = new QSplitter;
    whole->addWidget(sessions);
    whole->addWidget(right);
    whole->setStretchFactor(1, 1);
    whole->setSizes({330, 710});
    whole->setChildrenCollapsible(false);
    whole->setHandleWidth(theme::Spacing);
    auto* const row = new QVBoxLayout(this);
    row->setContentsMargins(0, theme::Spacing, 0, 0);
    row->addWidget(whole);
}

QWidget* GymPanel::makeSessions() {
    m_sessions->sortBy(0, Qt::DescendingOrder); // the latest first
    m_sessions->keepOneChosen();
    m_sessions->stretchAll();
    m_add = &m_sessions->setAdd(tr("Add session"), [this] { addSession(); });
    QAction& remove = m_sessions->setRemove(tr("Remove"), [this](const std::vector<int>& places) {
        edit(tr("removal of gym sessions"),
             [&](yearsplannings_v6& season) { removePlaces(season.gymdata, places); });
    });
    m_duplicate = new QPushButton(tr("Duplicate"));
    m_duplicate->setObjectName("duplicate");
    m_duplicate->setToolTip(tr("The same exercises once more, today"));
    connect(m_duplicate, &QPushButton::clicked, this, &GymPanel::duplicateSession);
    auto* const panel = new TablePanel(m_sessions);
    panel->addButton(buttonFor(*m_add, tr("Add session"), "add"));
    panel->addButton(buttonFor(remove, tr("Remove"), "remove"));
    panel->addButton(m_duplicate);
    connect(m_sessions, &ColumnTable::chosen, this, [this] { showExercises(true); });
    return panel;
}

void GymPanel::moveSession(std::size_t place, ReferenceDate date) {
    edit(tr("date"), [&](yearsplannings_v6& season) {
        if (place < season.gymdata.size())
            season.gymdata[place].date = date;
    });
}

void GymPanel::connectExercises() {
    connect(m_exercises, &ExerciseTable::edited, this, &GymPanel::editSession);
    connect(m_exercises, &ExerciseTable::exerciseChosen, this, &GymPanel::chooseExercise);
    connect(m_names, &QComboBox::currentIndexChanged, this, &GymPanel::showHistory);
}

ReferenceDate GymPanel::today() const {
    const auto day = dayOfMoment(m_clock());
    return day ? midnightOf(*day) : ReferenceDate();
}

void GymPanel::addSession() {
    addSession({}, tr("new gym session"));
    m_exercises->addExercise();
}

void GymPanel::duplicateSession() {
    if (const gymdataplanning_v1* const chosen = shownSession())
        addSession(*chosen, tr("copy of a gym session"));
}

void GymPanel::addSession(gymdataplanning_v1 session, const QString& what) {
    if (!season())
        return;
    session.date = today();
    std::size_t place = 0;
    edit(what, [&](yearsplannings_v6& season) {
        place = insertByDate(season.gymdata, std::move(session));
    });
    chooseSession(place);
}

void GymPanel::chooseSession(std::size_t place) {
    m_sessions->choose(static_cast<int>(place));
}

std::optional<std::size_t> GymPanel::session() const {
    const int place = m_sessions->currentPlace();
    return place < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(place));
}

const gymdataplanning_v1* GymPanel::shownSession() const {
    const auto place = session();
    return season() && place && *place < season()->gymdata.size() ? &season()->gymdata[*place]
                                                                  : nullptr;
}

void GymPanel::editSession(const QString& what,
                           const std::function<void(gymdataplanning_v1&)>& change) {
    const auto place = session();
    if (shownSession())
        edit(what, [&](yearsplannings_v6& season) { change(season.gymdata[*place]); });
}

QString GymPanel::sessionsEmptyText() const {
    if (!athlete())
        return tr("Choose an athlete.");
    if (!season())
        return tr("Add a season for this athlete first.");
    return tr("No gym session of this season yet.\nPress Insert to add today's.");
}

void GymPanel::refresh() {
    showNames();
    showSessions();
    showExercises(false);
    showHistory();
}

void GymPanel::showSessions() {
    m_sessions->setEmptyText(sessionsEmptyText());
    m_add->setEnabled(season() != nullptr);
    m_model.show(season() ? season()->gymdata : std::vector<gymdataplanning_v1>(), isOtherSeason());
    m_duplicate->setEnabled(shownSession());
}

void GymPanel::showExercises(bool isOther) {
    const gymdataplanning_v1* const shown = shownSession();
    m_exercises->show(shown, usedNames(),
                      shown ? tr("No exercise yet.\nPress Insert to add one.")
                            : tr("Choose or add a session to see its exercises."),
                      isOther);
}

/// Exercises of the whole group: athletes of one coach mostly lift the same.
QStringList GymPanel::usedNames() const {
    QStringList names;
    for (const athletesplanning_v6& each : document().athletes())
        for (const std::string& name : exercisesOf(each))
            names << QString::fromStdString(name);
    std::ranges::sort(names, [](const QString& a, const QString& b) {
        return isNaturallyBefore(a.toStdString(), b.toStdString());
    });
    const auto repeated = std::ranges::unique(names, {}, foldedName);
    names.erase(repeated.begin(), repeated.end());
    return names;
}

/// The chosen exercise stays chosen as long as it is there.
void GymPanel::showNames() {
    QStringList names;
    if (athlete())
        for (const std::string& name : exercisesOf(*athlete()))
            names << QString::fromStdString(name);
    const QString chosen = m_names->currentText();
    const QSignalBlocker quiet(m_names);
    m_names->clear();
    m_names->addItems(names);
    m_names->setEnabled(!names.isEmpty());
    chooseExercise(chosen);
}

void GymPanel::chooseExercise(const QString& name) {
    for (int i = 0; i < m_names->count() && !name.isEmpty(); ++i)
        if (foldedName(m_names->itemText(i)) == foldedName(name)) {
            m_names->setCurrentIndex(i);
            return;
        }
}

void GymPanel::showHistory() {
    ChartContent content =
        gymChart(athlete() ? *athlete() : athletesplanning_v6(), m_names->currentText());
    content.emptyText = m_names->count() == 0
                            ? tr("Add an exercise with its weight to see how it develops.")
                            : tr("No weight of %1 yet.").arg(m_names->currentText());
    m_chart->show(std::move(content));
}

} // namespace kavela::desktop
