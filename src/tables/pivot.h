#pragma once

#include "common/why.h"
#include "tables/table.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Rows put together by what two of their columns hold.
namespace kavela {

enum class PivotFunction { Count, Sum, Mean, Median, Least, Most };

/// "count", "sum", "mean", "median", "least", "most".
[[nodiscard]] std::string_view pivotFunctionName(PivotFunction function);

struct Pivot {
    std::string row;
    std::string column; ///< empty: one column for all
    std::string value;
    PivotFunction function = PivotFunction::Mean;

    friend bool operator==(const Pivot&, const Pivot&) = default;
};

/// Reads "Nation,Category,Time,mean"; a name with a comma stands in quotes, an empty second one
/// makes a single column. Throws TableError.
[[nodiscard]] Pivot parsedPivot(std::string_view text);

/// A row for each value of one column, a column for each of another, ascending, and in their cells
/// a figure of the third column's numbers; nothing where there are none. `Count` counts cells that
/// say something, DNF included. Columns but the first are derived. Throws TableError.
[[nodiscard]] ListTable pivoted(const ListTable& table, const Pivot& pivot);

/// One cell of that, which `why` hears about; its column is counted without the one of the rows'
/// own values. Throws as pivoted() does.
[[nodiscard]] GridCell pivotedCell(const ListTable& table, const Pivot& pivot, std::size_t row,
                                   std::size_t column, Why* why = nullptr);

} // namespace kavela
