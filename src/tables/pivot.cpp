#include "tables/pivot.h"

#include "common/number_text.h"
#include "common/percentile.h"
#include "common/text.h"
#include "tables/derived_columns.h"
#include "tables/table_error.h"
#include "tables/table_order.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

constexpr std::array<std::string_view, 6> PivotNames{"count",  "sum",   "mean",
                                                     "median", "least", "most"};

/// More columns nobody reads: the wrong one was named.
constexpr std::size_t MostPivotColumns = 250;
constexpr std::size_t MostPivotCells = 1'000'000;

/// The values of a column in their order, and which of them each row has.
struct PivotKeys {
    std::vector<std::string> texts;
    std::vector<std::size_t> ofRow;
};

PivotKeys pivotKeys(const ListTable& table, const GridColumn& column) {
    std::vector<std::size_t> rows(table.rows());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    std::ranges::stable_sort(
        rows, [&](std::size_t a, std::size_t b) { return isCellBefore(column, a, b); });
    PivotKeys keys;
    keys.ofRow.resize(table.rows());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i == 0 || isCellBefore(column, rows[i - 1], rows[i]))
            keys.texts.push_back(column.cells[rows[i]].text);
        keys.ofRow[rows[i]] = keys.texts.size() - 1;
    }
    return keys;
}

double pivotFigure(PivotFunction function, std::vector<double>& numbers) {
    std::ranges::sort(numbers);
    const double sum = std::accumulate(numbers.begin(), numbers.end(), 0.0);
    switch (function) {
    case PivotFunction::Count:
        return static_cast<double>(numbers.size());
    case PivotFunction::Sum:
        return sum;
    case PivotFunction::Mean:
        return sum / static_cast<double>(numbers.size());
    case PivotFunction::Median:
        return percentile(numbers, 0.5);
    case PivotFunction::Least:
        return numbers.front();
    case PivotFunction::Most:
        break;
    }
    return numbers.back();
}

ListColumnKind pivotKind(PivotFunction function, ListColumnKind kind) {
    if (function == PivotFunction::Count)
        return ListColumnKind::Whole;
    const bool isParted = function == PivotFunction::Mean || function == PivotFunction::Median;
    return isParted && kind == ListColumnKind::Whole ? ListColumnKind::Decimal : kind;
}

GridCell pivotCell(ListColumnKind kind, PivotFunction function, std::vector<double>& numbers) {
    GridCell cell;
    if (numbers.empty())
        return cell;
    cell.number = pivotFigure(function, numbers);
    cell.text =
        kind == ListColumnKind::Whole ? shortestText(*cell.number) : hundredthsText(*cell.number);
    return cell;
}

/// The numbers that a figure is of.
std::optional<double> pivotNumber(const GridColumn& column, std::size_t row,
                                  PivotFunction function) {
    if (function != PivotFunction::Count)
        return column.counted(row);
    return isNoValue(column.cells[row].text) ? std::nullopt : std::optional(1.0);
}

ListTable pivotRows(const ListTable& table, const GridColumn& rowColumn, const PivotKeys& keys) {
    ListTable made;
    made.separator = table.separator;
    made.refused = table.refused;
    made.notes = table.notes;
    made.lines.assign(keys.texts.size(), 0);
    GridColumn first;
    first.name = rowColumn.name;
    first.kind = rowColumn.kind;
    first.holdsTimes = rowColumn.holdsTimes;
    first.cells.resize(keys.texts.size());
    for (std::size_t row = 0; row < table.rows(); ++row)
        first.cells[keys.ofRow[row]] = rowColumn.cells[row];
    made.columns.push_back(std::move(first));
    return made;
}

} // namespace

std::string_view pivotFunctionName(PivotFunction function) {
    return PivotNames.at(static_cast<std::size_t>(function));
}

Pivot parsedPivot(std::string_view text) {
    const std::vector<std::string> parts = commaParts(text);
    constexpr std::size_t Parts = 4;
    if (parts.size() != Parts || parts[0].empty() || parts[2].empty())
        throw TableError("A pivot is ROW,COL,VALUE,FN, as in Nation,Category,Time,mean; \"" +
                         std::string(text) + "\" is not.");
    const auto function = std::ranges::find(PivotNames, parts[3]);
    if (function == PivotNames.end())
        throw TableError("\"" + parts[3] +
                         "\" is none of count, sum, mean, median, least and most.");
    return {parts[0], parts[1], parts[2],
            static_cast<PivotFunction>(function - PivotNames.begin())};
}

ListTable pivoted(const ListTable& table, const Pivot& pivot) {
    const GridColumn& rowColumn = table.columns[columnPlace(table, pivot.row)];
    const GridColumn& valueColumn = table.columns[columnPlace(table, pivot.value)];
    if (pivot.function != PivotFunction::Count)
        requireNumbers(valueColumn);
    const PivotKeys rows = pivotKeys(table, rowColumn);
    PivotKeys columns;
    if (pivot.column.empty())
        columns = {{std::string(pivotFunctionName(pivot.function)) + ' ' + valueColumn.name},
                   std::vector<std::size_t>(table.rows(), 0)};
    else
        columns = pivotKeys(table, table.columns[columnPlace(table, pivot.column)]);
    if (columns.texts.size() > MostPivotColumns ||
        columns.texts.size() * rows.texts.size() > MostPivotCells)
        throw TableError(say("The column \"{}\" has {} values: too many for columns of a pivot.",
                             pivot.column, columns.texts.size()));
    std::vector<std::vector<double>> numbers(rows.texts.size() * columns.texts.size());
    for (std::size_t row = 0; row < table.rows(); ++row)
        if (const auto number = pivotNumber(valueColumn, row, pivot.function))
            numbers[rows.ofRow[row] * columns.texts.size() + columns.ofRow[row]].push_back(*number);
    ListTable made = pivotRows(table, rowColumn, rows);
    for (std::size_t c = 0; c < columns.texts.size(); ++c) {
        GridColumn column;
        column.name =
            uniqueColumnName(made, columns.texts[c].empty() ? "(none)" : columns.texts[c]);
        column.kind = pivotKind(pivot.function, valueColumn.kind);
        column.isDerived = true;
        column.holdsTimes = valueColumn.holdsTimes && pivot.function > PivotFunction::Sum;
        for (std::size_t r = 0; r < rows.texts.size(); ++r)
            column.cells.push_back(
                pivotCell(column.kind, pivot.function, numbers[r * columns.texts.size() + c]));
        made.columns.push_back(std::move(column));
    }
    return made;
}

} // namespace kavela
