#pragma once

#include "common/why.h"
#include "tables/table.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Columns that are reckoned from others.
namespace kavela {

enum class Derivation {
    Total,      ///< sum; an empty cell of whole numbers, a clean run's penalty, adds nothing
    Rank,       ///< 1 + rows with a better number, times to the hundredth; equal ones share
    Gap,        ///< how far the number is behind the best
    Percent,    ///< 100 · (number / best − 1)
    Percentile, ///< of the other rows' numbers, how many percent are better: 0 for the best
    Difference, ///< the first column less the second
};

/// "total", "rank", "gap", "percent", "percentile", "difference".
[[nodiscard]] std::string_view derivationName(Derivation what);

struct DerivedColumn {
    Derivation what = Derivation::Rank;
    /// Names of columns: one or more of a total, two of a difference, one of the others. None of a
    /// total stands for the times and the penalties, none of the others for the column that ranks.
    std::vector<std::string> columns;
    std::string by; ///< the column within whose values rows are compared; empty: all
    bool isHighestBest = false;

    friend bool operator==(const DerivedColumn&, const DerivedColumn&) = default;
};

/// Reads "total:Time,Pen", "rank", "gap:Total by Category", "rank:Points down". Names with a comma,
/// " by " or a quote stand in quotes. Throws TableError.
[[nodiscard]] DerivedColumn parsedDerivedColumn(std::string_view text);

/// The same as text that reads back the same.
[[nodiscard]] std::string textOf(const DerivedColumn& derived);

/// The table with the column behind the others, named after what it is. A row has no number where
/// one that goes into it is missing or no time of a run; a word such as DNF is carried over. Throws
/// TableError for columns that are missing or have no numbers.
[[nodiscard]] ListTable withDerived(ListTable table, const DerivedColumn& derived);

/// One cell of that column, which `why` hears about; no number where it has none. Throws as
/// withDerived() does.
[[nodiscard]] GridCell derivedCell(const ListTable& table, const DerivedColumn& derived,
                                   std::size_t row, Why* why = nullptr);

/// The places of the columns that it is reckoned from. Throws as withDerived() does.
[[nodiscard]] std::vector<std::size_t> columnsBehind(const ListTable& table,
                                                     const DerivedColumn& derived);

/// Parts of a text between commas that stand outside quotes, quotes taken off, blanks around cut.
[[nodiscard]] std::vector<std::string> commaParts(std::string_view text);

} // namespace kavela
