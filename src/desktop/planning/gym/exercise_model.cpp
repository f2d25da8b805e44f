#include "desktop/planning/gym/exercise_model.h"

#include "desktop/planning/body/typed_measures.h"
#include "desktop/team/typed_values.h"
#include "planning/gym_maximum.h"

namespace kavela::desktop {

namespace {

constexpr std::int64_t MostSets = 999;
constexpr std::int64_t MostRepetitions = 9999;
constexpr double MostWeight = 1000;  ///< kilograms
constexpr double MostMaximum = 3000; ///< what the estimate can make of them

QString countShown(std::optional<std::int64_t> count) {
    return count ? numberShown(*count) : QString();
}

QString weightShown(std::optional<double> weight, bool isEdited) {
    if (!weight)
        return {};
    return isEdited ? measureEdited(*weight) : measureShown(*weight);
}

} // namespace

ExerciseModel::ExerciseModel(const DiagnosticLog& log, QObject* parent)
    : QAbstractTableModel(parent), m_log(log) {}

/// A model that is reset closes the editor in a cell, so it is only where rows came or went.
void ExerciseModel::show(const gymdataplanning_v1* session) {
    std::vector<GymRow> rows;
    for (std::size_t row = 0; session && row < gymRowCount(*session); ++row)
        rows.push_back(gymRow(*session, row));
    if (rows.size() == m_rows.size()) {
        m_rows = std::move(rows);
        if (!m_rows.empty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

std::optional<double> ExerciseModel::offered(int row) const {
    const GymRow& lift = m_rows[static_cast<std::size_t>(row)];
    const auto estimate = gymEstimate(lift);
    return estimate && *estimate != 0 && estimate != lift.maxweight ? estimate : std::nullopt;
}

int ExerciseModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ExerciseModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QString ExerciseModel::text(const QModelIndex& index, bool isEdited) const {
    const GymRow& lift = row(index.row());
    switch (index.column()) {
    case ExerciseColumn:
        return QString::fromStdString(lift.exercise.value_or(""));
    case SetsColumn:
        return countShown(lift.sets);
    case RepetitionsColumn:
        return countShown(lift.rep);
    case WeightColumn:
        return weightShown(lift.weight, isEdited);
    case MaximumColumn:
        return weightShown(lift.maxweight, isEdited);
    default:
        break;
    }
    const auto estimate = offered(index.row());
    return estimate ? QStringLiteral("← ") + measureShown(*estimate) : QString();
}

bool ExerciseModel::isMissing(const QModelIndex& index) const {
    const GymRow& lift = row(index.row());
    switch (index.column()) {
    case ExerciseColumn:
        return !lift.exercise;
    case SetsColumn:
        return !lift.sets;
    case RepetitionsColumn:
        return !lift.rep;
    case WeightColumn:
        return !lift.weight;
    case MaximumColumn:
        return !lift.maxweight;
    default:
        return false;
    }
}

QString ExerciseModel::oddity(const QModelIndex& index) const {
    if (isMissing(index))
        return tr("The file has no entry here. Typing makes one.");
    const GymRow& lift = row(index.row());
    switch (index.column()) {
    case SetsColumn:
        return oddityOf(static_cast<double>(*lift.sets), static_cast<double>(MostSets));
    case RepetitionsColumn:
        return oddityOf(static_cast<double>(*lift.rep), static_cast<double>(MostRepetitions));
    case WeightColumn:
        return oddityOf(*lift.weight, MostWeight);
    case MaximumColumn:
        return oddityOf(*lift.maxweight, MostMaximum);
    default:
        return {};
    }
}

QVariant ExerciseModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case Qt::EditRole:
        return text(index, true);
    case Qt::DisplayRole:
        return oddity(index).isEmpty() ? text(index, false) : marked(text(index, false));
    case Qt::ToolTipRole:
        if (index.column() == EstimateColumn && offered(index.row()))
            return tr("The estimate from repetitions and weight. A click or Ctrl+Enter takes it as "
                      "the maximum.");
        return oddity(index);
    case Qt::TextAlignmentRole:
        return QVariant((index.column() == ExerciseColumn || index.column() == EstimateColumn
                             ? Qt::AlignLeft
                             : Qt::AlignRight) |
                        Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ExerciseModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == ExerciseColumn || section == EstimateColumn ? Qt::AlignLeft
                                                                                : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return QStringList{tr("Exercise"),    tr("Sets"),         tr("Repetitions"),
                       tr("Weight (kg)"), tr("Maximum (kg)"), tr("Estimate")}
        .value(section);
}

Qt::ItemFlags ExerciseModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == EstimateColumn ? flags : flags | Qt::ItemIsEditable;
}

bool ExerciseModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QString typed = value.toString().trimmed();
    if (role != Qt::EditRole || typed == text(index, true))
        return false;
    try {
        setCell(index.row(), index.column(), typed);
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

void ExerciseModel::setCell(int row, int column, const QString& typed) {
    const auto at = static_cast<std::size_t>(row);
    const GymRow before = m_rows[at];
    if (column == ExerciseColumn) {
        emit edited(tr("exercise"), [&](gymdataplanning_v1& session) {
            setGymEntry(session.exercise, at, typed.toStdString());
        });
    } else if (column == SetsColumn) {
        const std::int64_t sets = typedCount(typed, MostSets);
        emit edited(tr("sets"),
                    [&](gymdataplanning_v1& session) { setGymEntry(session.sets, at, sets); });
    } else if (column == RepetitionsColumn) {
        const std::int64_t repetitions = typedCount(typed, MostRepetitions);
        emit edited(tr("repetitions"),
                    [&](gymdataplanning_v1& session) { setRepetitions(session, at, repetitions); });
        logEstimates(repetitions, before.weight);
    } else if (column == WeightColumn) {
        const double weight = typedMeasure(typed, MostWeight);
        emit edited(tr("weight"),
                    [&](gymdataplanning_v1& session) { setWeight(session, at, weight); });
        logEstimates(before.rep, weight);
    } else if (column == MaximumColumn) {
        const double maximum = typedMeasure(typed, MostMaximum);
        emit edited(tr("maximum"), [&](gymdataplanning_v1& session) {
            setGymEntry(session.maxweight, at, maximum);
        });
    }
}

void ExerciseModel::logEstimates(std::optional<std::int64_t> repetitions,
                                 std::optional<double> weight) const {
    if (repetitions && weight)
        (void)gymEstimates(*repetitions, *weight, m_log);
}

} // namespace kavela::desktop
