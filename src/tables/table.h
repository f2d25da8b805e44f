#pragma once

#include "tables/column_kinds.h"
#include "tables/column_titles.h"
#include "tables/list_grid.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A list whose columns have names and kinds.
namespace kavela {

struct GridCell {
    std::string text;             ///< as it is shown; of the source as it was written
    std::optional<double> number; ///< see CellValue; none where there is nothing to reckon with
    bool isStatus = false;        ///< DNS, DNF, DSQ beside numbers

    friend bool operator==(const GridCell&, const GridCell&) = default;
};

struct GridColumn {
    std::string name; ///< unique within its table
    ListColumnKind kind = ListColumnKind::Text;
    bool isDerived = false;  ///< not of the source
    bool holdsTimes = false; ///< numbers that are no time of a run count nowhere
    std::int64_t source = 0; ///< column of the list, counted from 1; 0 where it stands in none
    std::vector<GridCell> cells;

    /// The number of a row where it counts: a time of a run where the column holds such.
    [[nodiscard]] std::optional<double> counted(std::size_t row) const;
};

/// Rows that stand together.
struct RowGroup {
    std::string key; ///< what they have in common, as it is shown
    std::size_t first = 0;
    std::size_t count = 0;

    friend bool operator==(const RowGroup&, const RowGroup&) = default;
};

/// All columns have a cell for each row.
struct ListTable {
    std::string separator; ///< of the source; empty for a spreadsheet or where there was none
    std::vector<GridColumn> columns;
    std::vector<std::int64_t> lines;  ///< by row, in the source; 0 for rows that stand in none
    std::vector<std::size_t> ids;     ///< by row, the same wherever a step moves it
    std::vector<RefusedCell> refused; ///< ascending by line and column
    std::vector<std::string> notes;
    std::vector<RowGroup> groups;      ///< empty while nothing is grouped
    std::vector<std::string> coloured; ///< names of columns whose values are tinted

    [[nodiscard]] std::size_t rows() const { return lines.size(); }
};

/// The place of a column by its name, else by its name without regard to case, accents and marks,
/// else by its number from 1. Throws TableError that names the columns there are.
[[nodiscard]] std::size_t columnPlace(const ListTable& table, std::string_view name);

/// The first column of a role; nothing where there is none.
[[nodiscard]] std::optional<std::size_t> columnOfRole(const ListTable& table, ColumnRole role);

/// The column that ranks the rows: a total, else the first times, else the first decimals. Throws
/// TableError when there is none.
[[nodiscard]] std::size_t resultColumn(const ListTable& table);

/// Throws TableError for a column without numbers to reckon with.
void requireNumbers(const GridColumn& column);

/// The name, or with a number behind it where there is such a column already.
[[nodiscard]] std::string uniqueColumnName(const ListTable& table, std::string name);

/// The table with only these rows in this order; groups are dropped.
[[nodiscard]] ListTable withRows(const ListTable& table, const std::vector<std::size_t>& rows);

} // namespace kavela
