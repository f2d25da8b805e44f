#include "desktop/team/season_model.h"

#include "desktop/shell/shown_number.h"
#include "desktop/team/team_document.h"
#include "desktop/team/team_edits.h"
#include "desktop/team/typed_values.h"
#include "results/team_seasons.h"

#include <QFont>
#include <QMimeData>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* SeasonMimeType = "application/x-kavela-season";

bool isPhaseColumn(int column) {
    return column >= SeasonModel::FirstPhaseColumn && column < SeasonModel::Columns;
}

const char* phaseOf(int column) {
    return team::Phases[column - SeasonModel::FirstPhaseColumn];
}

} // namespace

SeasonModel::SeasonModel(TeamDocument& document, QObject* parent)
    : QAbstractItemModel(parent), m_document(document) {
    connect(&m_document, &TeamDocument::changed, this, &SeasonModel::reload);
}

void SeasonModel::show(std::optional<std::size_t> athlete, const std::string& category) {
    beginResetModel();
    m_athlete = athlete;
    m_category = category;
    m_shape = shape();
    endResetModel();
}

const mtCatsStruct* SeasonModel::results() const {
    const bool isThere = m_athlete && *m_athlete < m_document.athletes().size();
    return isThere ? categoryOf(m_document.athletes()[*m_athlete], m_category) : nullptr;
}

std::vector<std::size_t> SeasonModel::shape() const {
    std::vector<std::size_t> races;
    if (const mtCatsStruct* const category = results())
        for (const mtSeasonStruct& season : category->seasons)
            races.push_back(season.races.size());
    return races;
}

/// A model that is reset closes the editor in a cell, so it is only where rows came or went.
void SeasonModel::reload() {
    if (shape() != m_shape) {
        beginResetModel();
        m_shape = shape();
        endResetModel();
        return;
    }
    for (std::size_t season = 0; season < m_shape.size(); ++season) {
        const QModelIndex parent = indexOf({season, {}});
        emit dataChanged(parent, parent.siblingAtColumn(Columns - 1));
        if (m_shape[season] > 0)
            emit dataChanged(index(0, 0, parent),
                             index(static_cast<int>(m_shape[season]) - 1, Columns - 1, parent));
    }
}

bool SeasonModel::has(const SeasonPlace& place) const {
    return place.season < m_shape.size() && (!place.race || *place.race < m_shape[place.season]);
}

/// The internal number of an index is 0 for a season; for a race, one more than its season.
SeasonPlace SeasonModel::placeOf(const QModelIndex& index) const {
    const auto row = static_cast<std::size_t>(index.row());
    if (index.internalId() == 0)
        return {row, std::nullopt};
    return {static_cast<std::size_t>(index.internalId()) - 1, row};
}

QModelIndex SeasonModel::indexOf(const SeasonPlace& place, int column) const {
    if (!has(place))
        return {};
    return place.race ? createIndex(static_cast<int>(*place.race), column, place.season + 1)
                      : createIndex(static_cast<int>(place.season), column, quintptr{0});
}

QModelIndex SeasonModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || column < 0 || column >= Columns || row >= rowCount(parent))
        return {};
    const auto entry = static_cast<std::size_t>(row);
    return parent.isValid() ? indexOf({placeOf(parent).season, entry}, column)
                            : indexOf({entry, std::nullopt}, column);
}

QModelIndex SeasonModel::parent(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == 0)
        return {};
    return indexOf({placeOf(index).season, std::nullopt});
}

int SeasonModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return static_cast<int>(m_shape.size());
    const bool isSeason = parent.internalId() == 0 && parent.column() == TitleColumn;
    return isSeason ? static_cast<int>(m_shape[placeOf(parent).season]) : 0;
}

int SeasonModel::columnCount(const QModelIndex& /*parent*/) const {
    return Columns;
}

QVariant SeasonModel::seasonText(const mtSeasonStruct& season, std::size_t place,
                                 int column) const {
    switch (column) {
    case TitleColumn:
        return QString::number(season.year);
    case LocationColumn:
        return place < CountedSeasons ? tr("✓ counts") : QString();
    case RankingColumn:
        return numberShown(season.icfrankingpos);
    case PointsColumn:
        return season.icfrankingpoints == 0 ? QString() : shownNumber(season.icfrankingpoints);
    default:
        return QString();
    }
}

QVariant SeasonModel::raceText(const mtRaceStruct& race, int column) const {
    switch (column) {
    case TitleColumn:
        return QString::fromStdString(race.event);
    case LocationColumn:
        return QString::fromStdString(race.location);
    case FinalColumn:
        return numberShown(race.finalPos);
    default:
        break;
    }
    if (isPhaseColumn(column)) {
        const auto run = std::ranges::find(race.phases, phaseOf(column), &mtPhaseStruct::phase);
        if (run != race.phases.end())
            return QString::fromStdString(runText(*run));
    }
    return QString();
}

QVariant SeasonModel::data(const QModelIndex& index, int role) const {
    const SeasonPlace place = placeOf(index);
    const mtCatsStruct* const category = results();
    if (!category || !has(place))
        return {};
    const mtSeasonStruct& season = category->seasons[place.season];
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return place.race ? raceText(season.races[*place.race], index.column())
                          : seasonText(season, place.season, index.column());
    if (role == Qt::FontRole && !place.race) {
        QFont font;
        font.setBold(index.column() != LocationColumn);
        font.setItalic(index.column() == LocationColumn);
        return font;
    }
    if (role == Qt::TextAlignmentRole && index.column() >= FinalColumn &&
        index.column() <= PointsColumn)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && !place.race)
        return tr("The first two seasons count for the categorization. Move a season by dragging "
                  "it, or with Alt+Up and Alt+Down.");
    return {};
}

QVariant SeasonModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(
            (section >= FinalColumn && section <= PointsColumn ? Qt::AlignRight : Qt::AlignLeft) |
            Qt::AlignVCenter);
    if (role == Qt::ToolTipRole)
        return QStringList{QString(), QString(), tr("Final classification of the race"),
                           tr("Position in the ICF world ranking at the end of the season"),
                           tr("Points in the ICF world ranking")}
            .value(section);
    if (role != Qt::DisplayRole)
        return {};
    if (isPhaseColumn(section))
        return tr(phaseOf(section));
    return QStringList{tr("Season, race"), tr("Location"), tr("Place"), tr("Rank"), tr("Points")}
        .value(section);
}

Qt::ItemFlags SeasonModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    const bool isRace = placeOf(index).race.has_value();
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (!isRace)
        flags |= Qt::ItemIsDragEnabled;
    const bool isEditable = isRace ? index.column() <= FinalColumn
                                   : index.column() == TitleColumn ||
                                         index.column() == RankingColumn ||
                                         index.column() == PointsColumn;
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

void SeasonModel::edit(const QString& what, const std::function<void(mtCatsStruct&)>& change) {
    m_document.editResults(*m_athlete, m_category, what, change);
}

bool SeasonModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !results() || data(index, Qt::EditRole) == value.toString())
        return false;
    const SeasonPlace place = placeOf(index);
    try {
        place.race ? setRace(place, index.column(), value.toString())
                   : setSeason(place.season, index.column(), value.toString());
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

void SeasonModel::setSeason(std::size_t season, int column, const QString& typed) {
    if (column == RankingColumn) {
        const std::int64_t position = typedPosition(typed);
        edit(tr("ICF ranking position"),
             [&](mtCatsStruct& category) { category.seasons[season].icfrankingpos = position; });
    } else if (column == PointsColumn) {
        const double points = typedPoints(typed);
        edit(tr("ICF ranking points"),
             [&](mtCatsStruct& category) { category.seasons[season].icfrankingpoints = points; });
    } else {
        const std::int64_t year = typedYear(typed);
        const auto& seasons = results()->seasons;
        if (std::ranges::find(seasons, year, &mtSeasonStruct::year) != seasons.end())
            throw RefusedEntry(tr("There is a season %1 already.").arg(year));
        edit(tr("year"), [&](mtCatsStruct& category) { category.seasons[season].year = year; });
    }
}

void SeasonModel::setRace(const SeasonPlace& place, int column, const QString& typed) {
    const auto raceIn = [&place](mtCatsStruct& category) -> mtRaceStruct& {
        return category.seasons[place.season].races[*place.race];
    };
    if (column == FinalColumn) {
        const std::int64_t position = typedPosition(typed);
        edit(tr("final position"),
             [&](mtCatsStruct& category) { raceIn(category).finalPos = position; });
        return;
    }
    const std::string text = typed.trimmed().toStdString();
    const bool isEvent = column == TitleColumn;
    if (isEvent && std::ranges::find(team::Events, text) == std::end(team::Events))
        throw RefusedEntry(tr("“%1” is none of the events.").arg(typed));
    edit(isEvent ? tr("event") : tr("location"), [&](mtCatsStruct& category) {
        (isEvent ? raceIn(category).event : raceIn(category).location) = text;
    });
}

QStringList SeasonModel::mimeTypes() const {
    return {SeasonMimeType};
}

QMimeData* SeasonModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty() || placeOf(indexes.first()).race)
        return nullptr;
    auto* data = new QMimeData;
    data->setData(SeasonMimeType, QByteArray::number(indexes.first().row()));
    return data;
}

/// A drop onto a season, or onto one of its races, stands for the place in front of it.
bool SeasonModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                               int /*column*/, const QModelIndex& parent) {
    if (action != Qt::MoveAction || !data->hasFormat(SeasonMimeType))
        return false;
    const int from = data->data(SeasonMimeType).toInt();
    int before = rowCount();
    if (parent.isValid())
        before = static_cast<int>(placeOf(parent).season);
    else if (row >= 0)
        before = row;
    emit seasonDropped(static_cast<std::size_t>(from), static_cast<std::size_t>(before));
    return true;
}

} // namespace kavela::desktop
