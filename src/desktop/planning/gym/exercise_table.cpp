#include "desktop/planning/gym/exercise_table.h"

#include "desktop/planning/body/typed_measures.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_panel.h"
#include "desktop/shell/theme.h"
#include "planning/gym_maximum.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr double MostSets = 999;
constexpr double MostRepetitions = 9999;
constexpr double MostWeight = 1000;  ///< kilograms
constexpr double MostMaximum = 3000; ///< what the estimate can make of them

QLabel* makeLabel(const char* name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// A dash for an estimate that is none.
QString estimateText(double kilograms) {
    return std::isfinite(kilograms) && kilograms != 0 ? measureShown(kilograms)
                                                      : QStringLiteral("–");
}

/// The estimate that can be taken for a row: it is there, and the maximum is another.
std::optional<double> offered(const GymRow& row) {
    const auto estimate = gymEstimate(row);
    return estimate && *estimate != 0 && estimate != row.maxweight ? estimate : std::nullopt;
}

Cell missing() {
    return marked({}, ExerciseTable::tr("The file has no entry here. Typing makes one."));
}

Cell estimateCell(const GymRow& row) {
    const auto estimate = offered(row);
    if (!estimate)
        return {};
    return {.text = QStringLiteral("← ") + measureShown(*estimate),
            .number = estimate,
            .tip = ExerciseTable::tr("The estimate from repetitions and weight. A click or "
                                     "Ctrl+Enter takes it as the maximum.")};
}

/// A column of numbers; `set` sets the entry of a session at a place.
template <class Value>
Column<GymRow> liftColumn(const QString& title, const QString& unit,
                          std::optional<Value> GymRow::*member, double most,
                          std::function<void(std::size_t, const GymRow&, Value)> set) {
    return {.title = title,
            .unit = unit,
            .kind = ColumnKind::Number,
            .show =
                [member, most](const GymRow& row) {
                    return row.*member ? measureCell(static_cast<double>(*(row.*member)), most)
                                       : missing();
                },
            .take =
                [most, set](const std::size_t& at, const GymRow& row, const QString& typed) {
                    if constexpr (std::is_same_v<Value, double>)
                        set(at, row, typedMeasure(typed, most));
                    else
                        set(at, row, typedCount(typed, static_cast<std::int64_t>(most)));
                }};
}

} // namespace

ExerciseTable::ExerciseTable(const DiagnosticLog& log, QWidget* parent)
    : QWidget(parent),
      m_log(log),
      m_model(columns()),
      m_table(new ColumnTable(m_model, "exercises")),
      m_estimates(makeLabel("estimates")),
      m_totals(makeLabel("totals")) {
    m_totals->setForegroundRole(QPalette::PlaceholderText);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(makeTable(), 1);
    column->addWidget(m_estimates);
    column->addWidget(m_totals);
}

std::vector<Column<GymRow>> ExerciseTable::columns() {
    using Session = gymdataplanning_v1;
    return {
        {.title = tr("Exercise"),
         .show =
             [](const GymRow& row) {
                 return row.exercise ? Cell{QString::fromStdString(*row.exercise)} : missing();
             },
         .take =
             [this](const std::size_t& at, const GymRow&, const QString& typed) {
                 emit edited(tr("exercise"), [&](Session& session) {
                     setGymEntry(session.exercise, at, typed.toStdString());
                 });
             },
         .proposals = [this](const GymRow&) { return m_names; }},
        liftColumn<std::int64_t>(tr("Sets"), {}, &GymRow::sets, MostSets,
                                 [this](std::size_t at, const GymRow&, std::int64_t sets) {
                                     emit edited(tr("sets"), [&](Session& session) {
                                         setGymEntry(session.sets, at, sets);
                                     });
                                 }),
        liftColumn<std::int64_t>(
            tr("Repetitions"), {}, &GymRow::rep, MostRepetitions,
            [this](std::size_t at, const GymRow& before, std::int64_t repetitions) {
                emit edited(tr("repetitions"),
                            [&](Session& session) { setRepetitions(session, at, repetitions); });
                logEstimates(repetitions, before.weight);
            }),
        liftColumn<double>(tr("Weight"), tr("kg"), &GymRow::weight, MostWeight,
                           [this](std::size_t at, const GymRow& before, double weight) {
                               emit edited(tr("weight"), [&](Session& session) {
                                   setWeight(session, at, weight);
                               });
                               logEstimates(before.rep, weight);
                           }),
        liftColumn<double>(tr("Maximum"), tr("kg"), &GymRow::maxweight, MostMaximum,
                           [this](std::size_t at, const GymRow&, double maximum) {
                               emit edited(tr("maximum"), [&](Session& session) {
                                   setGymEntry(session.maxweight, at, maximum);
                               });
                           }),
        {.title = tr("Estimate"), .show = estimateCell},
    };
}

QWidget* ExerciseTable::makeTable() {
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_table->stretch({ExerciseColumn});
    m_table->keepOneChosen();
    m_add = &m_table->setAdd(tr("Add exercise"), [this] { addExercise(); });
    QAction& remove = m_table->setRemove(tr("Remove exercise"),
                                         [this](const std::vector<int>&) { removeExercise(); });
    m_take = &m_table->addCommand(tr("Take estimate"), Qt::CTRL | Qt::Key_Return,
                                  [this] { takeEstimate(); });
    auto* const panel = new TablePanel(m_table);
    panel->addButton(buttonFor(*m_add, tr("Add exercise"), "add"));
    panel->addButton(buttonFor(remove, tr("Remove"), "remove"));
    panel->addButton(buttonFor(*m_take, tr("Take estimate"), "take"));
    connect(m_table, &ColumnTable::chosen, this, &ExerciseTable::showRow);
    connect(m_table, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == EstimateColumn)
            takeEstimate();
    });
    return panel;
}

void ExerciseTable::show(const gymdataplanning_v1* session, const QStringList& names,
                         const QString& emptyText, bool isOther) {
    m_hasSession = session != nullptr;
    m_names = names;
    std::vector<GymRow> rows;
    for (std::size_t row = 0; session && row < gymRowCount(*session); ++row)
        rows.push_back(gymRow(*session, row));
    m_table->setEmptyText(emptyText);
    m_model.show(std::move(rows), isOther);
    m_totals->setText(session ? totalsText(*session) : QString());
    m_totals->setVisible(m_model.rowCount() > 0);
    showRow();
}

QString ExerciseTable::totalsText(const gymdataplanning_v1& session) const {
    const GymTotals totals = gymTotals(session);
    const QString exercises = totals.exercises == 1
                                  ? tr("1 exercise")
                                  : tr("%n exercises", nullptr, static_cast<int>(totals.exercises));
    return tr("%1 · %2 sets · tonnage %3 kg")
        .arg(exercises, totals.sets == 0 ? "0" : measureShown(totals.sets),
             totals.tonnage == 0 ? "0" : measureShown(totals.tonnage));
}

const GymRow* ExerciseTable::currentRow() const {
    const int place = m_table->currentPlace();
    return place < 0 ? nullptr : &m_model.row(place);
}

void ExerciseTable::showRow() {
    const GymRow* const row = currentRow();
    m_add->setEnabled(m_hasSession);
    m_take->setEnabled(row && offered(*row));
    showEstimates(row);
    const QString name = row && row->exercise ? QString::fromStdString(*row->exercise) : QString();
    if (name != std::exchange(m_chosen, name))
        emit exerciseChosen(name);
}

void ExerciseTable::showEstimates(const GymRow* row) {
    m_estimates->setVisible(row);
    if (!row)
        return;
    const bool isKnown = row->rep && row->weight;
    const GymEstimates estimates = isKnown ? gymEstimates(*row->rep, *row->weight) : GymEstimates();
    m_estimates->setText(
        tr("Estimated maximum: table %1 · Epley %2 · Brzycki %3 · McGlothin %4 · "
           "Lombardi %5 · result <b>%6</b>")
            .arg(estimateText(estimates.table), estimateText(estimates.epley),
                 estimateText(estimates.brzycki), estimateText(estimates.mcglothin),
                 estimateText(estimates.lombardi), estimateText(estimates.result)));
}

void ExerciseTable::addExercise() {
    if (!m_hasSession)
        return;
    emit edited(tr("new exercise"), [](gymdataplanning_v1& session) { addGymRow(session); });
    m_table->edit(m_model.rowCount() - 1, ExerciseColumn);
}

void ExerciseTable::removeExercise() {
    if (currentRow())
        emit edited(tr("removal of an exercise"),
                    [row = static_cast<std::size_t>(m_table->currentPlace())](
                        gymdataplanning_v1& session) { removeGymRow(session, row); });
}

void ExerciseTable::takeEstimate() {
    const GymRow* const row = currentRow();
    const auto estimate = row ? offered(*row) : std::nullopt;
    if (estimate)
        emit edited(tr("estimated maximum"), [&](gymdataplanning_v1& session) {
            setGymEntry(session.maxweight, static_cast<std::size_t>(m_table->currentPlace()),
                        *estimate);
        });
}

void ExerciseTable::logEstimates(std::optional<std::int64_t> repetitions,
                                 std::optional<double> weight) const {
    if (repetitions && weight)
        (void)gymEstimates(*repetitions, *weight, m_log);
}

} // namespace kavela::desktop
