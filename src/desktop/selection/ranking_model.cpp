#include "desktop/selection/ranking_model.h"

#include "desktop/selection/selection_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"
#include "desktop/team/typed_values.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

/// A name or a club may be longer than its column.
Cell withTip(const QString& text) {
    return {.text = text, .tip = text};
}

Cell numberCell(double number, const QString& text) {
    return {.text = text, .number = number, .tip = text};
}

QString resultText(const saRaceStruct& result) {
    const QString time = shownHundredths(result.resultTime);
    return result.pen > 0 ? QString("%1 (%2)").arg(time).arg(result.pen) : time;
}

/// What a place would be, and what it is.
Cell rankCell(const RankedAthlete& row) {
    const std::int64_t rank = row.standing.rank;
    Cell cell = withTip(!row.real || row.real->rank == rank
                            ? QString::number(rank)
                            : RankingModel::tr("%1 (was %2)").arg(rank).arg(row.real->rank));
    cell.sortValue = static_cast<double>(rank);
    cell.look = Cell::Look::Bold;
    return cell;
}

Cell scoreCell(const RankedAthlete& row) {
    const double score = row.standing.score.score;
    Cell cell = numberCell(score, shownHundredths(score));
    if (row.real && row.real->score.score != score)
        cell.tip = RankingModel::tr("was %1, now %2")
                       .arg(shownHundredths(row.real->score.score), cell.text);
    cell.look = Cell::Look::Bold;
    return cell;
}

Cell bonusCell(const RankedAthlete& row) {
    const auto& bonus = row.standing.score.bonus;
    return bonus ? numberCell(bonus->percentage, shownHundredths(bonus->percentage)) : Cell();
}

Cell yearCell(const RankedAthlete& row) {
    const std::int64_t year = row.record.year;
    return year == 0 ? Cell() : numberCell(static_cast<double>(year), QString::number(year));
}

Cell preselectionCell(const RankedAthlete& row) {
    const std::vector<bool>& flags = row.record.preselected;
    QStringList groups;
    std::optional<double> first;
    for (std::size_t group = 0; group < flags.size(); ++group) {
        if (!flags[group])
            continue;
        groups.append(flags.size() == 1 ? "✓" : QString::number(group + 1));
        first = first.value_or(static_cast<double>(group));
    }
    Cell cell = withTip(groups.join(' '));
    cell.sortValue = first;
    return cell;
}

const saRaceStruct* resultIn(const RankedAthlete& row, std::size_t race) {
    return race < row.record.racedata.size() ? &row.record.racedata[race] : nullptr;
}

/// Whether a result is one that was only tried.
bool isAssumed(const saRaceStruct& shown, const saRaceStruct& real) {
    return shown.resultTime != real.resultTime || shown.pen != real.pen ||
           shown.xTime != real.xTime;
}

QString raceTip(const saRaceStruct* result, ResultFate fate) {
    if (result && isZero(*result))
        return RankingModel::tr(
            "A time of 0 counts as the formula says and puts the athlete far in front. "
            "Edit > Make times of 0 missing results.");
    switch (fate) {
    case ResultFate::Worst:
        return RankingModel::tr("Dropped: the worst result");
    case ResultFate::SecondWorst:
        return RankingModel::tr("Dropped too: a bonus stands among the results");
    case ResultFate::Counted:
        break;
    }
    return RankingModel::tr("Counted");
}

} // namespace

RankingModel::RankingModel(SelectionDocument& document, QObject* parent)
    : ColumnModel(
          {}, [](const RankedAthlete& row) { return row.id; }, parent),
      m_document(document),
      m_real(document) {
    setColumns(columns());
    connect(&m_document, &SelectionDocument::changed, this, &RankingModel::reload);
}

void RankingModel::setCategory(std::size_t category) {
    m_isOtherCategory = category != m_category;
    m_category = category;
    m_isKeepingOrder = false;
    reload();
}

void RankingModel::orderAnew() {
    if (std::exchange(m_isKeepingOrder, false))
        reload();
}

void RankingModel::reload() {
    m_real.update(m_category);
    const bool isOther = std::exchange(m_isOtherCategory, false);
    if (isOther)
        m_known.clear();
    std::vector<RankedAthlete> rows = ranked();
    if (rows.size() != this->rows().size())
        m_isKeepingOrder = false;
    if (m_isKeepingOrder)
        std::ranges::sort(rows, {},
                          [this](const RankedAthlete& row) { return placeOfKey(row.id); });
    QStringList locations;
    for (const sRaceStruct& race : m_document.shown().races)
        locations.append(qtText(race.location));
    if (locations != std::exchange(m_locations, locations))
        setColumns(columns());
    show(std::move(rows), isOther);
}

std::vector<RankedAthlete> RankingModel::ranked() {
    std::vector<RankedAthlete> rows;
    const srCategoryStruct_v3* const category = categoryShown();
    if (!category)
        return rows;
    followAthletes(*category);
    for (const Standing& standing : standings(*category, m_document.shown().races.size(),
                                              m_document.bonus(), m_document.times())) {
        const srAthleteStruct_v3& record = category->athletes[standing.athlete];
        rows.push_back(
            {m_known[standing.athlete].id, record, standing, m_real.standingOf(record.name)});
    }
    return rows;
}

/// Where none came or went, each is the same, whatever he is called now; else by the name.
void RankingModel::followAthletes(const srCategoryStruct_v3& category) {
    std::vector<Known> before = std::exchange(m_known, {});
    const bool isEdited = before.size() == category.athletes.size();
    for (const srAthleteStruct_v3& athlete : category.athletes) {
        const auto same = isEdited ? before.begin() + std::ssize(m_known)
                                   : std::ranges::find(before, athlete.name, &Known::name);
        m_known.push_back({athlete.name, same == before.end() ? m_nextId++ : same->id});
        if (!isEdited && same != before.end())
            before.erase(same);
    }
}

const srCategoryStruct_v3* RankingModel::categoryShown() const {
    const auto& categories = m_document.shown().categories;
    return m_category < categories.size() ? &categories[m_category] : nullptr;
}

int RankingModel::placeOfAthlete(std::size_t athlete) const {
    const auto found = std::ranges::find(
        rows(), athlete, [](const RankedAthlete& row) { return row.standing.athlete; });
    return found == rows().end() ? -1 : static_cast<int>(found - rows().begin());
}

bool RankingModel::isExpected() const {
    return m_document.times() == SelectionTimes::Expected;
}

RankingModel::Columns RankingModel::columns() {
    constexpr ColumnKind Number = ColumnKind::Number;
    const auto name = [](const RankedAthlete& row) { return withTip(qtText(row.record.name)); };
    const auto club = [](const RankedAthlete& row) { return withTip(qtText(row.record.club)); };
    Columns columns;
    columns.push_back({.title = tr("#"), .kind = Number, .show = rankCell});
    columns.push_back(corrected({.title = tr("SURNAME Name"), .show = name},
                                [](srAthleteStruct_v3& athlete, const QString& typed) {
                                    athlete.name = typed.toStdString();
                                }));
    columns.push_back({.title = tr("Score"), .kind = Number, .show = scoreCell});
    columns.push_back({.title = tr("Bonus"), .kind = Number, .show = bonusCell});
    columns.push_back(corrected({.title = tr("Year"), .kind = Number, .show = yearCell},
                                [](srAthleteStruct_v3& athlete, const QString& typed) {
                                    athlete.year = typedBirthYear(typed);
                                }));
    columns.push_back(corrected({.title = tr("Club"), .show = club},
                                [](srAthleteStruct_v3& athlete, const QString& typed) {
                                    athlete.club = typed.toStdString();
                                }));
    columns.push_back({.title = tr("Pre"), .kind = Number, .show = preselectionCell});
    for (qsizetype race = 0; race < m_locations.size(); ++race)
        addRaceColumns(columns, static_cast<std::size_t>(race), m_locations[race]);
    return columns;
}

RankingModel::AthleteColumn
RankingModel::corrected(AthleteColumn column,
                        std::function<void(srAthleteStruct_v3&, const QString&)> correct) {
    column.take = [this, correct = std::move(correct)](std::size_t, const RankedAthlete& row,
                                                       const QString& typed) {
        srAthleteStruct_v3 athlete = row.record;
        correct(athlete, typed);
        edit(tr("correction"), [&](selectionracesStruct_v3& document) {
            document.categories[m_category].athletes[row.standing.athlete] = athlete;
        });
    };
    return column;
}

/// The columns of a race may be there before its results are.
void RankingModel::addRaceColumns(Columns& columns, std::size_t race, const QString& location) {
    using Take = void (RankingModel::*)(const ResultPlace&, saRaceStruct, const QString&);
    const auto add = [&](const QString& title, std::function<Cell(const saRaceStruct&)> cell,
                         Take taken) {
        AthleteColumn column{.title = title, .kind = ColumnKind::Number};
        column.show = [this, race, cell = std::move(cell)](const RankedAthlete& row) {
            const saRaceStruct* const result = resultIn(row, race);
            return inRace(row, race, result ? cell(*result) : Cell());
        };
        if (taken)
            column.take = [this, race, taken](std::size_t, const RankedAthlete& row,
                                              const QString& typed) {
                const saRaceStruct* const result = resultIn(row, race);
                (this->*taken)({m_category, row.standing.athlete, race},
                               result ? *result : missingResult(), typed);
            };
        columns.push_back(std::move(column));
    };
    add(
        location, [this](const saRaceStruct& result) { return timeCell(result); },
        &RankingModel::takeTime);
    add(
        tr("Pen"),
        [](const saRaceStruct& result) {
            return isMissing(result)
                       ? Cell()
                       : numberCell(static_cast<double>(result.pen), QString::number(result.pen));
        },
        &RankingModel::takePenalty);
    add(
        tr("%"), [this](const saRaceStruct& result) { return percentCell(result); }, nullptr);
}

Cell RankingModel::timeCell(const saRaceStruct& result) const {
    const double time = isExpected() ? result.xTime : result.resultTime;
    if (isMissing(result) || time == MissingTime)
        return {.text = QStringLiteral("–"), .typed = QString()};
    return {.text = shownHundredths(time), .number = time, .typed = shownNumber(time)};
}

Cell RankingModel::percentCell(const saRaceStruct& result) const {
    const double percent = isExpected() ? result.resultxPer : result.resultPer;
    return isMissing(result) || percent == MissingPercentage
               ? Cell()
               : numberCell(percent, shownHundredths(percent));
}

/// What became of a result shows in each of its cells.
Cell RankingModel::inRace(const RankedAthlete& row, std::size_t race, Cell cell) const {
    const std::vector<ScorePart>& parts = row.standing.score.races;
    if (race >= parts.size())
        return cell;
    const saRaceStruct* const result = resultIn(row, race);
    const saRaceStruct* const real = m_real.resultOf(row.record.name, race);
    cell.isStruck = parts[race].fate != ResultFate::Counted;
    cell.tip = raceTip(result, parts[race].fate);
    if (result && real && isAssumed(*result, *real)) {
        cell.look = Cell::Look::Italic;
        cell.tip = tr("Tried only. Really: %1")
                       .arg(isMissing(*real) ? tr("no result") : resultText(*real));
    }
    if (result && isZero(*result))
        cell.look = Cell::Look::Warning;
    return cell;
}

/// What is typed changes the places at once, the order of the rows when the row is left.
void RankingModel::edit(const QString& what,
                        const std::function<void(selectionracesStruct_v3&)>& change) {
    m_isKeepingOrder = true;
    m_document.change(what, change);
}

void RankingModel::takePenalty(const ResultPlace& place, saRaceStruct result,
                               const QString& typed) {
    if (isMissing(result))
        throw RefusedEntry(tr("Enter the time first: the penalty belongs to it."));
    result.pen = typedPenalty(typed);
    edit(tr("penalty"), [&](selectionracesStruct_v3& document) {
        setResult(document, place, result.resultTime, result.pen, result.xTime);
    });
}

/// An emptied time makes the result a missing one; an emptied expected time leaves the result
/// itself alone.
void RankingModel::takeTime(const ResultPlace& place, saRaceStruct result, const QString& typed) {
    if (typed.isEmpty() && !isExpected()) {
        edit(tr("result removed"),
             [&](selectionracesStruct_v3& document) { clearResult(document, place); });
        return;
    }
    double& time = isExpected() ? result.xTime : result.resultTime;
    time = typed.isEmpty() ? MissingTime : typedTime(typed);
    edit(tr("result"), [&](selectionracesStruct_v3& document) {
        setResult(document, place, result.resultTime, result.pen, result.xTime);
    });
}

} // namespace kavela::desktop
