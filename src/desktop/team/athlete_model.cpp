#include "desktop/team/athlete_model.h"

#include "desktop/team/team_document.h"
#include "desktop/team/typed_values.h"
#include "results/athlete_keys.h"

#include <QFont>

namespace kavela::desktop {

AthleteModel::AthleteModel(TeamDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document) {
    connect(&m_document, &TeamDocument::changed, this, &AthleteModel::reload);
}

/// A model that is reset closes the editor in a cell, so it is only where rows came or went.
void AthleteModel::reload() {
    const auto rows = static_cast<int>(m_document.athletes().size());
    if (rows == m_rows && rows > 0) {
        emit dataChanged(index(0, 0), index(rows - 1, Columns - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int AthleteModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int AthleteModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

QVariant AthleteModel::text(int row, int column) const {
    const myTeamStruct& athlete = m_document.athletes()[static_cast<std::size_t>(row)];
    QStringList categories;
    for (const mtCatsStruct& category : athlete.cats)
        categories.append(QString::fromStdString(category.cat));
    switch (column) {
    case NameColumn:
        return QString::fromStdString(athlete.name);
    case BirthYearColumn:
        return numberShown(athlete.birthYear);
    case CategoriesColumn:
        return categories.join(' ');
    default:
        return {};
    }
}

QVariant AthleteModel::data(const QModelIndex& index, int role) const {
    const myTeamStruct& athlete = m_document.athletes()[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return text(index.row(), index.column());
    if (role == CategoriesRole)
        return text(index.row(), CategoriesColumn).toString().split(' ', Qt::SkipEmptyParts);
    if (role == Qt::CheckStateRole && index.column() == RetiredColumn)
        return athlete.isretired ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::FontRole && athlete.isretired) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    if (role == Qt::ToolTipRole && athlete.isretired)
        return tr("Retired: left out of the categorization report");
    return {};
}

QVariant AthleteModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::ToolTipRole && section == RetiredColumn)
        return tr("Retired");
    if (role != Qt::DisplayRole)
        return {};
    return QStringList{tr("Athlete"), tr("Born"), tr("Boats"), tr("Ret.")}.value(section);
}

Qt::ItemFlags AthleteModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() == RetiredColumn)
        return flags | Qt::ItemIsUserCheckable;
    return index.column() == CategoriesColumn ? flags : flags | Qt::ItemIsEditable;
}

bool AthleteModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const auto athlete = static_cast<std::size_t>(index.row());
    if (role == Qt::CheckStateRole && index.column() == RetiredColumn) {
        m_document.editAthlete(athlete, tr("retirement"), [&](myTeamStruct& record) {
            record.isretired = value.toInt() == Qt::Checked;
        });
        return true;
    }
    if (role != Qt::EditRole || text(index.row(), index.column()) == value.toString())
        return false;
    try {
        index.column() == NameColumn ? rename(athlete, value.toString())
                                     : setBirthYear(athlete, value.toString());
        return true;
    } catch (const RefusedEntry& refusal) {
        emit refused(refusal.reason());
        return false;
    }
}

void AthleteModel::rename(std::size_t athlete, const QString& typed) {
    const std::string name = checkedName(m_document, typed, athlete);
    m_document.editAthlete(athlete, tr("name"), [&](myTeamStruct& record) { record.name = name; });
}

void AthleteModel::setBirthYear(std::size_t athlete, const QString& typed) {
    const std::int64_t year = typedBirthYear(typed);
    m_document.editAthlete(athlete, tr("birth year"),
                           [&](myTeamStruct& record) { record.birthYear = year; });
}

std::string checkedName(const TeamDocument& document, const QString& typed,
                        std::optional<std::size_t> athlete) {
    const std::string name = typed.simplified().toStdString();
    const std::string key = crewKey(name);
    if (key.empty())
        throw RefusedEntry(AthleteModel::tr("An athlete needs a name."));
    const auto& athletes = document.athletes();
    for (std::size_t other = 0; other < athletes.size(); ++other)
        if (other != athlete && crewKey(athletes[other].name) == key)
            throw RefusedEntry(AthleteModel::tr("“%1” is in the team already.")
                                   .arg(QString::fromStdString(athletes[other].name)));
    return name;
}

} // namespace kavela::desktop
