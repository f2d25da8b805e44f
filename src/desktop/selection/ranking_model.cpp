#include "desktop/selection/ranking_model.h"

#include "desktop/selection/selection_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/team/typed_values.h"

#include <QColor>
#include <QFont>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

const QColor Warning(0xE0, 0x7B, 0x00);

QString resultText(const saRaceStruct& result) {
    return result.pen > 0
               ? QString("%1 (%2)").arg(shownHundredths(result.resultTime)).arg(result.pen)
               : shownHundredths(result.resultTime);
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
    : QAbstractTableModel(parent), m_document(document), m_real(document) {
    connect(&m_document, &SelectionDocument::changed, this, &RankingModel::reload);
}

void RankingModel::setCategory(std::size_t category) {
    m_category = category;
    m_isKeepingOrder = false;
    reload();
}

void RankingModel::orderAnew() {
    if (!m_isKeepingOrder)
        return;
    m_isKeepingOrder = false;
    reload();
}

RankingModel::Shape RankingModel::shape() const {
    const srCategoryStruct_v3* const category = categoryShown();
    return {m_category, category ? category->athletes.size() : 0, races()};
}

/// A model that is reset forgets the current cell, so it is only where rows or columns came or
/// went.
void RankingModel::reload() {
    std::vector<Standing> ranking;
    if (const srCategoryStruct_v3* const category = categoryShown())
        ranking = standings(*category, races(), m_document.bonus(), m_document.times());
    m_real.update(m_category);
    if (shape() == m_shape) {
        setOrder(std::move(ranking));
        return;
    }
    beginResetModel();
    m_shape = shape();
    m_standings = std::move(ranking);
    m_isKeepingOrder = false;
    endResetModel();
}

/// The rows in the order of a ranking of the same athletes, or in the order they have.
void RankingModel::setOrder(std::vector<Standing> ranking) {
    if (m_isKeepingOrder) {
        for (Standing& standing : m_standings)
            standing = *std::ranges::find(ranking, standing.athlete, &Standing::athlete);
        if (rowCount() > 0)
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        return;
    }
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    const std::vector<Standing> old = std::exchange(m_standings, std::move(ranking));
    for (const QModelIndex& kept : before)
        after.append(
            index(rowOfAthlete(old[static_cast<std::size_t>(kept.row())].athlete), kept.column()));
    changePersistentIndexList(before, after);
    emit layoutChanged();
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

std::optional<Standing> RankingModel::realStandingOfRow(int row) const {
    return m_real.standingOf(athleteAt(row).name);
}

/// Whether a result is one that was only tried.
bool RankingModel::isAssumed(int row, std::size_t race) const {
    const saRaceStruct* const real = m_real.resultOf(athleteAt(row).name, race);
    const auto& results = athleteAt(row).racedata;
    if (!real || race >= results.size())
        return false;
    const saRaceStruct& shown = results[race];
    return shown.resultTime != real->resultTime || shown.pen != real->pen ||
           shown.xTime != real->xTime;
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

/// What a place would be, and what it is.
QString RankingModel::rankText(int row) const {
    const std::int64_t rank = standingOfRow(row).rank;
    const auto real = realStandingOfRow(row);
    if (!real || real->rank == rank)
        return QString::number(rank);
    return tr("%1 (was %2)").arg(rank).arg(real->rank);
}

QString RankingModel::leadingText(int row, int column) const {
    const srAthleteStruct_v3& athlete = athleteAt(row);
    switch (column) {
    case RankColumn:
        return rankText(row);
    case NameColumn:
        return qtText(athlete.name);
    case ScoreColumn:
        return shownHundredths(standingOfRow(row).score.score);
    case BonusColumn: {
        const auto& bonus = standingOfRow(row).score.bonus;
        return bonus ? shownHundredths(bonus->percentage) : QString();
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
        if (time == MissingTime)
            return role == Qt::DisplayRole ? "–" : QString();
        return role == Qt::DisplayRole ? shownHundredths(time) : shownNumber(time);
    }
    case PenaltyColumn:
        return QString::number(result.pen);
    default: {
        const double percent = isExpected ? result.resultxPer : result.resultPer;
        return percent == MissingPercentage ? QString() : shownHundredths(percent);
    }
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

QVariant RankingModel::toolTip(const QModelIndex& index) const {
    const int row = index.row();
    const auto race = raceOfColumn(index.column());
    if (race && isAssumed(row, *race)) {
        const saRaceStruct& real = *m_real.resultOf(athleteAt(row).name, *race);
        return tr("Tried only. Really: %1")
            .arg(isMissing(real) ? tr("no result") : resultText(real));
    }
    if (race)
        return raceToolTip(row, *race);
    const auto real = realStandingOfRow(row);
    const double score = standingOfRow(row).score.score;
    if (index.column() == ScoreColumn && real && real->score.score != score)
        return tr("was %1, now %2").arg(shownHundredths(real->score.score), shownHundredths(score));
    // A name or a club may be longer than its column.
    return index.data();
}

QVariant RankingModel::font(const QModelIndex& index) const {
    QFont font;
    const auto race = raceOfColumn(index.column());
    font.setBold(index.column() == ScoreColumn || index.column() == RankColumn);
    if (race) {
        font.setItalic(isAssumed(index.row(), *race));
        font.setStrikeOut(standingOfRow(index.row()).score.races[*race].fate !=
                          ResultFate::Counted);
    }
    return font;
}

QVariant RankingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const int row = index.row();
    const auto race = raceOfColumn(index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return race ? raceText(row, *race, (index.column() - LeadingColumns) % RaceColumns, role)
                    : leadingText(row, index.column());
    case Qt::TextAlignmentRole: {
        const bool isText = index.column() == NameColumn || index.column() == ClubColumn;
        return QVariant((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    case Qt::ToolTipRole:
        return toolTip(index);
    case Qt::FontRole:
        return font(index);
    case Qt::ForegroundRole:
        if (race && *race < athleteAt(row).racedata.size() &&
            isZero(athleteAt(row).racedata[*race]))
            return Warning;
        return {};
    default:
        return {};
    }
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
    // Should the edit be refused, nothing was out of order.
    const bool wasKeeping = std::exchange(m_isKeepingOrder, true);
    try {
        if (const auto race = raceOfColumn(index.column()))
            setResultPart(index.row(), *race, (index.column() - LeadingColumns) % RaceColumns,
                          text);
        else
            setLeading(index.row(), index.column(), text);
        return true;
    } catch (const RefusedEntry& refusal) {
        m_isKeepingOrder = wasKeeping;
        emit refused(refusal.reason());
        return false;
    }
}

void RankingModel::setLeading(int row, int column, const QString& text) {
    const std::int64_t year = column == YearColumn ? typedBirthYear(text) : 0;
    const std::size_t athlete = athleteOfRow(row);
    m_document.change(tr("correction"), [&](selectionracesStruct_v3& document) {
        srAthleteStruct_v3& record = document.categories[m_category].athletes[athlete];
        if (column == YearColumn)
            record.year = year;
        else
            (column == NameColumn ? record.name : record.club) = text.toStdString();
    });
}

void RankingModel::setResultPart(int row, std::size_t race, int part, const QString& text) {
    const ResultPlace place{m_category, athleteOfRow(row), race};
    const srAthleteStruct_v3& athlete = athleteAt(row);
    saRaceStruct result = race < athlete.racedata.size() ? athlete.racedata[race] : missingResult();
    if (part == TimeColumn) {
        setTime(place, result, text);
        return;
    }
    if (isMissing(result))
        throw RefusedEntry(tr("Enter the time first: the penalty belongs to it."));
    result.pen = typedPenalty(text);
    m_document.change(tr("penalty"), [&](selectionracesStruct_v3& document) {
        setResult(document, place, result.resultTime, result.pen, result.xTime);
    });
}

/// An emptied time makes the result a missing one; an emptied expected time leaves the result
/// itself alone.
void RankingModel::setTime(const ResultPlace& place, saRaceStruct result, const QString& text) {
    const bool isExpected = m_document.times() == SelectionTimes::Expected;
    if (text.isEmpty() && !isExpected) {
        m_document.change(tr("result removed"),
                          [&](selectionracesStruct_v3& document) { clearResult(document, place); });
        return;
    }
    double& time = isExpected ? result.xTime : result.resultTime;
    time = text.isEmpty() ? MissingTime : typedTime(text);
    m_document.change(tr("result"), [&](selectionracesStruct_v3& document) {
        setResult(document, place, result.resultTime, result.pen, result.xTime);
    });
}

} // namespace kavela::desktop
