#include "tables/pivot.h"

#include "common/number_text.h"
#include "common/percentile.h"
#include "common/text.h"
#include "tables/derived_columns.h"
#include "tables/table_error.h"
#include "tables/table_order.h"
#include "tables/table_rules.h"
#include "tables/told_cells.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace kavela {

namespace {

constexpr std::array<std::string_view, 6> PivotNames{"count",  "sum",   "mean",
                                                     "median", "least", "most"};

/// In the order of PivotFunction.
constexpr std::array PivotRules{TableRule::PivotCount, TableRule::PivotSum,
                                TableRule::PivotMean,  TableRule::PivotMedian,
                                TableRule::PivotLeast, TableRule::PivotMost};

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

/// A pivot of one table, cell by cell.
class PivotCells {
public:
    PivotCells(const ListTable& table, const Pivot& pivot)
        : m_table(table),
          m_function(pivot.function),
          m_row(columnPlace(table, pivot.row)),
          m_value(columnPlace(table, pivot.value)) {
        if (m_function != PivotFunction::Count)
            requireNumbers(valueColumn());
        m_rows = pivotKeys(table, table.columns[m_row]);
        if (pivot.column.empty())
            m_columns = {{std::string(pivotFunctionName(m_function)) + ' ' + valueColumn().name},
                         std::vector<std::size_t>(table.rows(), 0)};
        else
            m_columns = pivotKeys(table, table.columns[columnPlace(table, pivot.column)]);
        if (m_columns.texts.size() > MostPivotColumns ||
            m_columns.texts.size() * m_rows.texts.size() > MostPivotCells)
            throw TableError(
                say("The column \"{}\" has {} values: too many for columns of a pivot.",
                    pivot.column, m_columns.texts.size()));
        m_behind.resize(m_rows.texts.size() * m_columns.texts.size());
        for (std::size_t row = 0; row < table.rows(); ++row)
            if (numberOf(row))
                m_behind[placeOf(m_rows.ofRow[row], m_columns.ofRow[row])].push_back(row);
    }

    [[nodiscard]] ListTable made() const {
        ListTable made = rowsAlone();
        for (std::size_t c = 0; c < m_columns.texts.size(); ++c) {
            GridColumn column;
            column.name =
                uniqueColumnName(made, m_columns.texts[c].empty() ? "(none)" : m_columns.texts[c]);
            column.kind = kind();
            column.isDerived = true;
            column.holdsTimes = valueColumn().holdsTimes && m_function > PivotFunction::Sum;
            for (std::size_t r = 0; r < m_rows.texts.size(); ++r)
                column.cells.push_back(cell(r, c));
            made.columns.push_back(std::move(column));
        }
        return made;
    }

    /// A column is counted without the one of the rows' own values.
    [[nodiscard]] GridCell cell(std::size_t row, std::size_t column, Why* why = nullptr) const {
        const std::vector<std::size_t>& behind = m_behind[placeOf(row, column)];
        GridCell cell;
        if (behind.empty())
            return cell;
        std::vector<double> numbers;
        numbers.reserve(behind.size());
        for (const std::size_t of : behind)
            numbers.push_back(*numberOf(of));
        cell.number = pivotFigure(m_function, numbers);
        cell.text = kind() == ListColumnKind::Whole ? shortestText(*cell.number)
                                                    : hundredthsText(*cell.number);
        if (why) {
            tellCells(m_table, m_value, behind, *why,
                      m_function == PivotFunction::Count ? ToldOfCell::CountsAsOne
                                                         : ToldOfCell::Number);
            why->result(ruleOf(PivotRules.at(static_cast<std::size_t>(m_function))), *cell.number,
                        cell.text);
        }
        return cell;
    }

private:
    [[nodiscard]] const GridColumn& valueColumn() const { return m_table.columns[m_value]; }
    [[nodiscard]] ListColumnKind kind() const { return pivotKind(m_function, valueColumn().kind); }
    [[nodiscard]] std::size_t placeOf(std::size_t row, std::size_t column) const {
        return row * m_columns.texts.size() + column;
    }

    /// What a row adds to a figure.
    [[nodiscard]] std::optional<double> numberOf(std::size_t row) const {
        if (m_function != PivotFunction::Count)
            return valueColumn().counted(row);
        return isNoValue(valueColumn().cells[row].text) ? std::nullopt : std::optional(1.0);
    }

    [[nodiscard]] ListTable rowsAlone() const {
        const GridColumn& column = m_table.columns[m_row];
        ListTable made;
        made.separator = m_table.separator;
        made.refused = m_table.refused;
        made.notes = m_table.notes;
        made.lines.assign(m_rows.texts.size(), 0);
        made.ids.resize(m_rows.texts.size());
        std::iota(made.ids.begin(), made.ids.end(), std::size_t{0});
        GridColumn first;
        first.name = column.name;
        first.kind = column.kind;
        first.holdsTimes = column.holdsTimes;
        first.cells.resize(m_rows.texts.size());
        for (std::size_t row = 0; row < m_table.rows(); ++row)
            first.cells[m_rows.ofRow[row]] = column.cells[row];
        made.columns.push_back(std::move(first));
        return made;
    }

    const ListTable& m_table;
    PivotFunction m_function;
    std::size_t m_row;
    std::size_t m_value;
    PivotKeys m_rows;
    PivotKeys m_columns;
    std::vector<std::vector<std::size_t>> m_behind; ///< rows, by cell
};

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
    return PivotCells(table, pivot).made();
}

GridCell pivotedCell(const ListTable& table, const Pivot& pivot, std::size_t row,
                     std::size_t column, Why* why) {
    return PivotCells(table, pivot).cell(row, column, why);
}

} // namespace kavela
