#include "desktop/selection/ranking_model.h"

#include "common/number_text.h"
#include "desktop/selection/selection_document.h"
#include "results/list_lines.h"

#include <QColor>
#include <QFont>

#include <algorithm>

namespace kavela::desktop {

namespace {

const QColor Warning(0xE0, 0x7B, 0x00);

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

QString hundredths(double value) {
    return qtText(hundredthsText(value));
}

QString preselectionText(const std::vector<bool>& flags) {
    QStringList groups;
    for (std::size_t group = 0; group < flags.size(); ++group)
        if (flags[group])
            groups.append(flags.size() == 1 ? "✓" : QString::number(group + 1));
    return groups.join(' ');
}

} // namespace

RankingModel::RankingModel(SelectionDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_document(document) {
    connect(&m_document, &SelectionDocument::changed, this, &RankingModel::reload);
}

void RankingModel::setCategory(std::size_t category) {
    m_category = category;
    reload();
}

void RankingModel::reload() {
    beginResetModel();
    m_standings.clear();
    if (const srCategoryStruct_v3* const category = categoryShown())
        m_standings = standings(*category, races(), m_document.bonus(), m_document.times());
    endResetModel();
}

const srCategoryStruct_v3* RankingModel::categoryShown() const {
    const auto& categories = m_document.shown().categories;
    return m_category < categories.size() ? &categories[m_category] : nullptr;
}

std::size_t RankingModel::races() const {
    return m_document.shown().races.size();
}

std::size_t RankingModel::athleteOfRow(int row) const {
    return m_standings.at(static_cast<std::size_t>(row)).athlete;
}

int RankingModel::rowOfAthlete(std::size_t athlete) const {
    const auto found = std::ranges::find(m_standings, athlete, &Standing::athlete);
    return found == m_standings.end() ? -1 : static_cast<int>(found - m_standings.begin());
}

const Standing& RankingModel::standingOfRow(int row) const {
    return m_standings.at(static_cast<std::size_t>(row));
}

const srAthleteStruct_v3& RankingModel::athleteAt(int row) const {
    return categoryShown()->athletes[athleteOfRow(row)];
}

std::optional<std::size_t> RankingModel::raceOfColumn(int column) const {
    const int place = column - LeadingColumns;
    const auto race = static_cast<std::size_t>(place / RaceColumns);
    return place < 0 || race >= races() ? std::nullopt : std::optional(race);
}

int RankingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_standings.size());
}

int RankingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : LeadingColumns + RaceColumns * static_cast<int>(races());
}

QString RankingModel::leadingText(int row, int column) const {
    const srAthleteStruct_v3& athlete = athleteAt(row);
    switch (column) {
    case RankColumn:
        return QString::number(standingOfRow(row).rank);
    case NameColumn:
        return qtText(athlete.name);
    case ScoreColumn:
        return hundredths(standingOfRow(row).score.score);
    case BonusColumn: {
        const auto& bonus = standingOfRow(row).score.bonus;
        return bonus ? hundredths(bonus->percentage) : QString();
    }
    case YearColumn:
        return athlete.year == 0 ? QString() : QString::number(athlete.year);
    case ClubColumn:
        return qtText(athlete.club);
    default:
        return preselectionText(athlete.preselected);
    }
}

QString RankingModel::raceText(int row, std::size_t race, int part, int role) const {
    const srAthleteStruct_v3& athlete = athleteAt(row);
    if (race >= athlete.racedata.size())
        return {};
    const saRaceStruct& result = athlete.racedata[race];
    if (isMissing(result))
        return part == TimeColumn && role == Qt::DisplayRole ? "–" : QString();
    const bool isExpected = m_document.times() == SelectionTimes::Expected;
    switch (part) {
    case TimeColumn: {
        const double time = isExpected ? result.xTime : result.resultTime;
        return role == Qt::DisplayRole ? hundredths(time) : qtText(shortestText(time));
    }
    case PenaltyColumn:
        return QString::number(result.pen);
    default:
        return hundredths(isExpected ? result.resultxPer : result.resultPer);
    }
}

QVariant RankingModel::raceToolTip(int row, std::size_t race) const {
    const srAthleteStruct_v3& athlete = athleteAt(row);
    if (race < athlete.racedata.size() && isZero(athlete.racedata[race]))
        return tr("A time of 0 counts as the formula says and puts the athlete far in front. "
                  "Edit > Make times of 0 missing results.");
    switch (standingOfRow(row).score.races[race].fate) {
    case ResultFate::Worst:
        return tr("Dropped: the worst result");
    case ResultFate::SecondWorst:
        return tr("Dropped too: a bonus stands among the results");
    default:
        return tr("Counted");
    }
}

QVariant RankingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const int row = index.row();
    const auto race = raceOfColumn(index.column());
    const int part = (index.column() - LeadingColumns) % RaceColumns;
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return race ? raceText(row, *race, part, role) : leadingText(row, index.column());
    if (role == Qt::TextAlignmentRole) {
        const bool isText = index.column() == NameColumn || index.column() == ClubColumn;
        return QVariant((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    if (!race) {
        QFont bold;
        bold.setBold(true);
        const bool isMain = index.column() == ScoreColumn || index.column() == RankColumn;
        return role == Qt::FontRole && isMain ? QVariant(bold) : QVariant();
    }
    if (role == Qt::ToolTipRole)
        return raceToolTip(row, *race);
    if (role == Qt::FontRole && standingOfRow(row).score.races[*race].fate != ResultFate::Counted) {
        QFont struck;
        struck.setStrikeOut(true);
        return struck;
    }
    if (role == Qt::ForegroundRole && *race < athleteAt(row).racedata.size() &&
        isZero(athleteAt(row).racedata[*race]))
        return Warning;
    return {};
}

QVariant RankingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    static const QStringList leading{tr("#"),    tr("SURNAME Name"), tr("Score"), tr("Bonus"),
                                     tr("Year"), tr("Club"),         tr("Pre")};
    if (section < LeadingColumns)
        return leading[section];
    const auto race = raceOfColumn(section);
    const QString location = qtText(m_document.shown().races[*race].location);
    switch ((section - LeadingColumns) % RaceColumns) {
    case TimeColumn:
        return location;
    case PenaltyColumn:
        return tr("Pen");
    default:
        return tr("%");
    }
}

Qt::ItemFlags RankingModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isPart = raceOfColumn(index.column()).has_value() &&
                        (index.column() - LeadingColumns) % RaceColumns != PercentColumn;
    const bool isText = index.column() == NameColumn || index.column() == YearColumn ||
                        index.column() == ClubColumn;
    return isPart || isText ? flags | Qt::ItemIsEditable : flags;
}

bool RankingModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QString text = value.toString().trimmed();
    if (role != Qt::EditRole || text == data(index, Qt::EditRole).toString())
        return false;
    if (const auto race = raceOfColumn(index.column()))
        return setResultPart(index.row(), *race, (index.column() - LeadingColumns) % RaceColumns,
                             text);
    return setLeading(index.row(), index.column(), text);
}

bool RankingModel::setLeading(int row, int column, const QString& text) {
    std::int64_t year = 0;
    if (column == YearColumn && !text.isEmpty() && !parseField(text.toStdString(), year)) {
        emit refused(tr("The birth year must be a whole number."));
        return false;
    }
    const std::size_t athlete = athleteOfRow(row);
    m_document.change(tr("correction"), [&](selectionracesStruct_v3& document) {
        srAthleteStruct_v3& record = document.categories[m_category].athletes[athlete];
        if (column == YearColumn)
            record.year = year;
        else
            (column == NameColumn ? record.name : record.club) = text.toStdString();
    });
    return true;
}

/// An emptied time makes the result a missing one.
bool RankingModel::setResultPart(int row, std::size_t race, int part, const QString& text) {
    const ResultPlace place{m_category, athleteOfRow(row), race};
    const srAthleteStruct_v3& athlete = athleteAt(row);
    saRaceStruct result = race < athlete.racedata.size() ? athlete.racedata[race] : missingResult();
    if (part == TimeColumn && text.isEmpty()) {
        m_document.change(tr("result removed"),
                          [&](selectionracesStruct_v3& document) { clearResult(document, place); });
        return true;
    }
    const bool isExpected = m_document.times() == SelectionTimes::Expected;
    double& time = isExpected ? result.xTime : result.resultTime;
    const bool isNumber = part == TimeColumn
                              ? parseField(text.toStdString(), time) && time >= 0
                              : parseField(text.toStdString(), result.pen) && result.pen >= 0;
    if (!isNumber) {
        emit refused(part == TimeColumn ? tr("The time must be a number of seconds, with a point.")
                                        : tr("The penalty must be a whole number of seconds."));
        return false;
    }
    m_document.change(tr("result"), [&](selectionracesStruct_v3& document) {
        setResult(document, place, result.resultTime, result.pen, result.xTime);
    });
    return true;
}

} // namespace kavela::desktop
