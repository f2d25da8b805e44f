#include "analysis/analysis_reasons.h"

#include "analysis/analysis_rules.h"
#include "analysis/ideal_run.h"
#include "common/delimited_text.h"

#include <algorithm>

namespace kavela {

namespace {

std::string_view takeWord(std::string_view& id) {
    const std::size_t slash = id.find('/');
    const std::string_view word = id.substr(0, slash);
    id = slash == std::string_view::npos ? std::string_view() : id.substr(slash + 1);
    return word;
}

std::optional<std::size_t> takeNumber(std::string_view& id) {
    const std::string_view word = takeWord(id);
    std::size_t number = 0;
    const bool isNumber = !word.empty() && word.front() >= '0' && word.front() <= '9';
    return isNumber && parseField(word, number) ? std::optional(number) : std::nullopt;
}

std::optional<Reason> toldReason(const Why& why) {
    Reason reason = why.reason();
    return reason.rule ? std::optional(std::move(reason)) : std::nullopt;
}

/// The colour of a cell; sections beyond the tenth have none.
void tellBand(const RaceSet& set, const TableSettings& settings, const TableCell& cell, Why* why) {
    if (cell.column)
        (void)TableScales(set, settings.kind, settings.penaltiesIncluded)
            .bandOf(*cell.column, cell.value, why);
}

/// The place of a run of the file among the runs of the set.
std::optional<std::size_t> placeOfRun(const RaceSet& set, std::size_t number) {
    const auto found = std::ranges::find(set.alldata, static_cast<std::int64_t>(number),
                                         &analyzerdata::athleteInt);
    if (found == set.alldata.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - set.alldata.begin());
}

std::optional<Reason> explainTime(const RaceSet& set, const TableSettings& settings,
                                  std::string_view id, bool isBand) {
    const auto number = takeNumber(id);
    const auto column = takeNumber(id);
    const auto run = number ? placeOfRun(set, *number) : std::nullopt;
    if (!run || !column || *column == 0 || *column > tableColumns(set).size() || !id.empty())
        return std::nullopt;
    Why why;
    const TableCell cell = splitCell(set, settings, *run, *column - 1, isBand ? why.part() : &why);
    tellBand(set, settings, cell, isBand ? &why : why.part());
    return toldReason(why);
}

std::optional<Reason> explainIdeal(const RaceSet& set, std::string_view id) {
    const bool isTotal = id == "total";
    const auto section = isTotal ? std::nullopt : takeNumber(id);
    if (!isTotal && (!section || !id.empty()))
        return std::nullopt;
    Why why;
    (void)idealRun(set, {section}, &why);
    return toldReason(why);
}

} // namespace

Reason explainCell(const ShownTable& shown, std::size_t row, std::size_t column) {
    Why time;
    const TableCell cell = splitCell(shown.set, shown.settings, row, column, &time);
    if (shown.settings.isTinted())
        tellBand(shown.set, shown.settings, cell, time.part());
    if (shown.content == CellContent::Time)
        return time.reason();
    Why why;
    (void)cellText(shown.table, shown.figures, row, column, shown.content, shown.reference, &why);
    Reason figure = why.reason();
    if (!figure.rule)
        return time.reason();
    figure.parts.push_back(time.reason());
    return figure;
}

std::optional<Reason> explainComparison(const ShownTable& shown, const ComparisonRow& row,
                                        std::size_t column) {
    constexpr std::size_t Closing = 3; // total, sprint, real
    Why why;
    if (row.origin.empty() && shown.content == CellContent::Time && row.values[column] != 0) {
        const bool isTotal = column + Closing >= shown.table.columns.size();
        const bool isAccumulated = shown.settings.kind == ValueKind::Accumulated;
        (void)idealRun(shown.set,
                       {isTotal ? std::nullopt : std::optional(column + 1), isAccumulated}, &why);
        return toldReason(why);
    }
    (void)comparisonText(row, shown.figures, column, shown.content, shown.reference, &why);
    if (!row.origin.empty())
        why.note(row.name + " in " + row.origin);
    return toldReason(why);
}

std::optional<Reason> explainRace(const RaceSet& set, const TableSettings& settings,
                                  std::string_view id) {
    const std::string_view word = takeWord(id);
    if (word == "band" || word == "cell")
        return explainTime(set, settings, id, word == "band");
    return word == "ideal" ? explainIdeal(set, id) : std::nullopt;
}

} // namespace kavela
