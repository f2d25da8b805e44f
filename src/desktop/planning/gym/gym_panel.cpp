#include "desktop/planning/gym/gym_panel.h"

#include "common/folded_text.h"
#include "desktop/charts/series_chart.h"
#include "desktop/planning/body/measure_table.h"
#include "desktop/planning/gym/exercise_table.h"
#include "desktop/planning/gym/gym_rows.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

std::string foldedName(const QString& name) {
    return folded(name.toStdString());
}

MeasureRow sessionRow(const gymdataplanning_v1& session, std::size_t place) {
    const GymTotals totals = gymTotals(session);
    return {place, session.date, {static_cast<double>(totals.exercises), totals.tonnage}};
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
      m_sessions(new MeasureTable(
          {{tr("Exercises"), {}, 1e6, false}, {tr("Tonnage"), tr("kg"), 1e9, false}},
          tr("Add session"))),
      m_exercises(new ExerciseTable(log)),
      m_names(new QComboBox),
      m_chart(new SeriesChart) {
    m_names->setObjectName("exercise");
    m_names->setAccessibleName(tr("Exercise of the chart"));
    m_names->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    makeParts();
    makeSessions();
    connectExercises();
}

void GymPanel::makeParts() {
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
    whole->addWidget(m_sessions);
    whole->addWidget(right);
    whole->setStretchFactor(1, 1);
    whole->setSizes({330, 710});
    whole->setChildrenCollapsible(false);
    whole->setHandleWidth(theme::Spacing);
    auto* const row = new QVBoxLayout(this);
    row->setContentsMargins(0, theme::Spacing, 0, 0);
    row->addWidget(whole);
}

void GymPanel::makeSessions() {
    m_sessions->view().setObjectName("sessions");
    auto* const duplicate = new QPushButton(tr("Duplicate"));
    duplicate->setObjectName("duplicate");
    duplicate->setToolTip(tr("The same exercises once more, today"));
    m_sessions->addButton(duplicate);
    connect(duplicate, &QPushButton::clicked, this, &GymPanel::duplicateSession);
    connect(m_sessions, &MeasureTable::addAsked, this, [this] { addSession(); });
    connect(m_sessions, &MeasureTable::removalAsked, this,
            [this](const std::vector<std::size_t>& places) {
                edit(tr("removal of gym sessions"),
                     [&](yearsplannings_v6& season) { removePlaces(season.gymdata, places); });
            });
    connect(m_sessions, &MeasureTable::currentChanged, this, &GymPanel::showExercises);
    connect(&m_sessions->model(), &MeasureModel::dateTyped, this,
            [this](std::size_t place, ReferenceDate date) {
                edit(tr("date"), [&](yearsplannings_v6& season) {
                    if (place < season.gymdata.size())
                        season.gymdata[place].date = date;
                });
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
    m_sessions->choose(place);
}

void GymPanel::chooseSession(std::size_t place) {
    m_sessions->choose(place);
}

std::optional<std::size_t> GymPanel::session() const {
    return m_sessions->current();
}

const gymdataplanning_v1* GymPanel::shownSession() const {
    const auto place = m_sessions->current();
    return season() && place && *place < season()->gymdata.size() ? &season()->gymdata[*place]
                                                                  : nullptr;
}

void GymPanel::editSession(const QString& what,
                           const std::function<void(gymdataplanning_v1&)>& change) {
    const auto place = m_sessions->current();
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
    showExercises();
    showHistory();
}

void GymPanel::showSessions() {
    std::vector<MeasureRow> rows;
    if (season())
        for (std::size_t place = 0; place < season()->gymdata.size(); ++place)
            rows.push_back(sessionRow(season()->gymdata[place], place));
    m_sessions->setEmptyText(sessionsEmptyText(), season() != nullptr);
    m_sessions->show(std::move(rows));
    m_sessions->findChild<QPushButton*>("duplicate")->setEnabled(shownSession());
}

void GymPanel::showExercises() {
    const gymdataplanning_v1* const shown = shownSession();
    m_exercises->show(shown, usedNames(),
                      shown ? tr("No exercise yet.\nPress Insert to add one.")
                            : tr("Choose or add a session to see its exercises."));
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
