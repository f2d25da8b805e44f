#include "desktop/team/phase_model.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"
#include "desktop/team/team_document.h"
#include "desktop/team/team_edits.h"
#include "desktop/team/typed_values.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

/// Phases of a race are mostly held on one day, or on the next.
mtPhaseStruct& newRun(mtRaceStruct& race, const std::string& phase) {
    const ReferenceDate day = race.phases.empty() ? ReferenceDate() : race.phases.back().date;
    mtPhaseStruct& run = phaseIn(race, phase);
    run.date = day;
    return run;
}

/// A number that is only there with `isThere`.
Cell numberCell(const QString& text, double number, bool isThere) {
    return isThere ? Cell{.text = text, .number = number} : Cell();
}

Cell secondsCell(double seconds, bool isThere) {
    return numberCell(shownHundredths(seconds), seconds, isThere);
}

Cell countCell(std::int64_t count, bool isThere) {
    return numberCell(QString::number(count), static_cast<double>(count), isThere);
}

Cell percentCell(const PhaseRow& row) {
    const auto percent = row.place ? percentBehindOf(row.run) : std::nullopt;
    return percent ? numberCell(shownHundredths(*percent) + " %", *percent, true) : Cell();
}

Cell dateCell(const PhaseRow& row) {
    return {.text = dayShown(row.run.date), .sortValue = row.run.date.seconds};
}

/// A column of what a run has, which is nothing where the phase was not raced.
Column<PhaseRow> runColumn(const QString& title, Cell (*show)(const mtPhaseStruct&)) {
    return {.title = title, .kind = ColumnKind::Number, .show = [show](const PhaseRow& row) {
                return show(row.run);
            }};
}

} // namespace

PhaseModel::PhaseModel(TeamDocument& document, const SeasonModel& seasons, QObject* parent)
    : QObject(parent),
      m_document(document),
      m_seasons(seasons),
      m_rows(columns(), RowsKnownBy::Number) {
    connect(&m_document, &TeamDocument::changed, this, [this] { m_rows.show(phases()); });
}

void PhaseModel::show(std::optional<SeasonPlace> race) {
    m_race = race && race->race ? race : std::nullopt;
    m_rows.show(phases(), true);
}

const mtRaceStruct* PhaseModel::race() const {
    const mtCatsStruct* const category = m_seasons.results();
    if (!category || !m_race || m_race->season >= category->seasons.size())
        return nullptr;
    const auto& races = category->seasons[m_race->season].races;
    return *m_race->race < races.size() ? &races[*m_race->race] : nullptr;
}

std::vector<PhaseRow> PhaseModel::phases() const {
    const mtRaceStruct* const shown = race();
    std::vector<PhaseRow> rows;
    if (!shown)
        return rows;
    for (const char* phase : team::Phases)
        rows.push_back({phase, std::nullopt, {}});
    for (std::size_t place = 0; place < shown->phases.size(); ++place) {
        const mtPhaseStruct& run = shown->phases[place];
        const auto row = std::ranges::find(rows, run.phase, &PhaseRow::phase);
        if (row != rows.end() && !row->place)
            *row = {run.phase, place, run};
        else
            rows.push_back({run.phase, place, run});
    }
    return rows;
}

std::vector<Column<PhaseRow>> PhaseModel::columns() {
    const auto typed = [this](Column<PhaseRow> column, const QString& what, auto read,
                              auto mtPhaseStruct::*member) {
        column.take = [this, what, read, member](std::size_t, const PhaseRow& row,
                                                 const QString& text) {
            const auto value = read(text);
            editRun(what, row, [&](mtPhaseStruct& run) { run.*member = value; });
        };
        return column;
    };
    using Run = mtPhaseStruct;
    return {{.title = tr("Phase"),
             .show = [](const PhaseRow& row) { return Cell{QString::fromStdString(row.phase)}; }},
            typed(runColumn(tr("Time"),
                            [](const Run& run) { return secondsCell(run.time, run.time != 0); }),
                  tr("time"), typedTime, &Run::time),
            typed(runColumn(tr("Penalty"),
                            [](const Run& run) {
                                return countCell(run.pen, run.time != 0 || run.pen != 0);
                            }),
                  tr("penalty"), typedPenalty, &Run::pen),
            runColumn(tr("Total"),
                      [](const Run& run) {
                          return secondsCell(run.time + static_cast<double>(run.pen),
                                             run.time != 0);
                      }),
            typed(runColumn(tr("Position"),
                            [](const Run& run) { return countCell(run.pos, run.pos != 0); }),
                  tr("position"), typedPosition, &Run::pos),
            {.title = tr("Date"),
             .kind = ColumnKind::Number,
             .show = dateCell,
             .take =
                 [this](std::size_t, const PhaseRow& row, const QString& text) {
                     const ReferenceDate date = typedDay(text, row.run.date);
                     if (!row.place)
                         throw RefusedEntry(tr("Enter a time or a position first."));
                     editRun(tr("date"), row, [date](Run& run) { run.date = date; });
                 }},
            {.title = tr("Behind"),
             .tip = tr("Known where the run was taken over from a split file"),
             .kind = ColumnKind::Number,
             .show = percentCell},
            runColumn(tr("Splits"), [](const Run& run) {
                return countCell(static_cast<std::int64_t>(run.splits.size()), !run.splits.empty());
            })};
}

void PhaseModel::edit(const QString& what, const std::function<void(mtRaceStruct&)>& change) {
    const SeasonPlace place = *m_race;
    m_document.editResults(
        *m_seasons.athlete(), m_seasons.category(), what,
        [&](mtCatsStruct& category) { change(category.seasons[place.season].races[*place.race]); });
}

void PhaseModel::editRun(const QString& what, const PhaseRow& row, const RunEdit& change) {
    edit(what, [&](mtRaceStruct& race) {
        change(row.place ? race.phases[*row.place] : newRun(race, row.phase));
        dropEmptyPhases(race);
    });
}

void PhaseModel::removeRun(int row) {
    if (const auto place = m_rows.row(row).place)
        edit(tr("removal of a run"), [&](mtRaceStruct& race) {
            race.phases.erase(race.phases.begin() + static_cast<std::ptrdiff_t>(*place));
        });
}

} // namespace kavela::desktop
