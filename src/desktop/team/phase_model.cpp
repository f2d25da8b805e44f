#include "desktop/team/phase_model.h"

#include "desktop/shell/shown_number.h"
#include "desktop/team/team_document.h"
#include "desktop/team/team_edits.h"
#include "desktop/team/typed_values.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

QString hundredths(double seconds) {
    return shownHundredths(seconds);
}

/// Phases of a race are mostly held on one day, or on the next.
mtPhaseStruct& newRun(mtRaceStruct& race, const std::string& phase) {
    const ReferenceDate day = race.phases.empty() ? ReferenceDate() : race.phases.back().date;
    mtPhaseStruct& run = phaseIn(race, phase);
    run.date = day;
    return run;
}

} // namespace

PhaseModel::PhaseModel(TeamDocument& document, const SeasonModel& seasons, QObject* parent)
    : QAbstractTableModel(parent), m_document(document), m_seasons(seasons) {
    connect(&m_document, &TeamDocument::changed, this, &PhaseModel::reload);
}

void PhaseModel::show(std::optional<SeasonPlace> race) {
    beginResetModel();
    m_race = race && race->race ? race : std::nullopt;
    m_rows = rows();
    endResetModel();
}

const mtRaceStruct* PhaseModel::race() const {
    const mtCatsStruct* const category = m_seasons.results();
    if (!category || !m_race || m_race->season >= category->seasons.size())
        return nullptr;
    const auto& races = category->seasons[m_race->season].races;
    return *m_race->race < races.size() ? &races[*m_race->race] : nullptr;
}

std::vector<PhaseModel::Row> PhaseModel::rows() const {
    const mtRaceStruct* const shown = race();
    std::vector<Row> rows;
    if (!shown)
        return rows;
    for (const char* phase : team::Phases)
        rows.push_back({phase, std::nullopt});
    for (std::size_t run = 0; run < shown->phases.size(); ++run) {
        const std::string& phase = shown->phases[run].phase;
        const auto row = std::ranges::find(rows, phase, &Row::phase);
        if (row != rows.end() && !row->run)
            row->run = run;
        else
            rows.push_back({phase, run});
    }
    return rows;
}

/// A model that is reset closes the editor in a cell, so it is only where rows came or went.
void PhaseModel::reload() {
    std::vector<Row> now = rows();
    if (now.size() == m_rows.size()) {
        m_rows = std::move(now);
        if (!m_rows.empty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
        return;
    }
    beginResetModel();
    m_rows = std::move(now);
    endResetModel();
}

const mtPhaseStruct* PhaseModel::runOf(int row) const {
    const mtRaceStruct* const shown = race();
    const auto& run = m_rows[static_cast<std::size_t>(row)].run;
    return shown && run && *run < shown->phases.size() ? &shown->phases[*run] : nullptr;
}

int PhaseModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int PhaseModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QString PhaseModel::text(int row, int column) const {
    if (column == PhaseColumn)
        return QString::fromStdString(m_rows[static_cast<std::size_t>(row)].phase);
    const mtPhaseStruct* const run = runOf(row);
    if (!run)
        return {};
    switch (column) {
    case TimeColumn:
        return run->time == 0 ? QString() : hundredths(run->time);
    case PenaltyColumn:
        return run->time == 0 && run->pen == 0 ? QString() : QString::number(run->pen);
    case TotalColumn:
        return run->time == 0 ? QString() : hundredths(run->time + static_cast<double>(run->pen));
    case PositionColumn:
        return numberShown(run->pos);
    case DateColumn:
        return dayShown(run->date);
    case SplitsColumn:
        return numberShown(static_cast<std::int64_t>(run->splits.size()));
    default:
        break;
    }
    const auto percentage = percentBehindOf(*run);
    return percentage ? hundredths(*percentage) + " %" : QString();
}

QVariant PhaseModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole && index.column() != PhaseColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && index.column() == PercentColumn)
        return tr("Known where the run was taken over from a split file");
    return {};
}

QVariant PhaseModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == PhaseColumn ? Qt::AlignLeft : Qt::AlignRight) |
                        Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return QStringList{tr("Phase"),    tr("Time"), tr("Penalty"), tr("Total"),
                       tr("Position"), tr("Date"), tr("Behind"),  tr("Splits")}
        .value(section);
}

Qt::ItemFlags PhaseModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    switch (index.column()) {
    case TimeColumn:
    case PenaltyColumn:
    case PositionColumn:
    case DateColumn:
        return flags | Qt::ItemIsEditable;
    default:
        return flags;
    }
}

void PhaseModel::edit(const QString& what, const std::function<void(mtRaceStruct&)>& change) {
    const SeasonPlace place = *m_race;
    m_document.editResults(
        *m_seasons.athlete(), m_seasons.category(), what,
        [&](mtCatsStruct& category) { change(category.seasons[place.season].races[*place.race]); });
}

bool PhaseModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !race() || text(index.row(), index.column()) == value.toString())
        return false;
    try {
        setCell(m_rows[static_cast<std::size_t>(index.row())], index.column(), value.toString());
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

void PhaseModel::setCell(Row row, int column, const QString& typed) {
    const auto changeRun = [&](const QString& what, const auto& change) {
        edit(what, [&](mtRaceStruct& race) {
            change(row.run ? race.phases[*row.run] : newRun(race, row.phase));
            dropEmptyPhases(race);
        });
    };
    const mtPhaseStruct* const run = row.run ? &race()->phases[*row.run] : nullptr;
    if (column == TimeColumn) {
        const double time = typedTime(typed);
        changeRun(tr("time"), [time](mtPhaseStruct& entry) { entry.time = time; });
    } else if (column == PenaltyColumn) {
        const std::int64_t penalty = typedPenalty(typed);
        changeRun(tr("penalty"), [penalty](mtPhaseStruct& entry) { entry.pen = penalty; });
    } else if (column == PositionColumn) {
        const std::int64_t position = typedPosition(typed);
        changeRun(tr("position"), [position](mtPhaseStruct& entry) { entry.pos = position; });
    } else {
        const ReferenceDate date = typedDay(typed, run ? run->date : ReferenceDate());
        if (!run)
            throw RefusedEntry(tr("Enter a time or a position first."));
        changeRun(tr("date"), [date](mtPhaseStruct& entry) { entry.date = date; });
    }
}

void PhaseModel::removeRun(int row) {
    const auto run = m_rows.at(static_cast<std::size_t>(row)).run;
    if (run)
        edit(tr("removal of a run"), [&](mtRaceStruct& race) {
            race.phases.erase(race.phases.begin() + static_cast<std::ptrdiff_t>(*run));
        });
}

} // namespace kavela::desktop
