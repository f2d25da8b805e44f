#pragma once

#include "facts/query_columns.h"

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The language in which coaches ask a season:
///
///     gates up left cat K1W time<4 year 2026
///     runs athlete "Bell Anna" place Troja
///     best sprint by athlete
///
///     query      = [what] { condition | clause }
///     what       = "runs" | "sections" | "gates" | "penalties" | "losses" | "strokes" | "tags"
///     condition  = column [comparison] value
///                | "text" [comparison] value
///                | label
///     comparison = "=" | "!=" | "<" | "<=" | ">" | ">="
///     clause     = "by" column { "," column }
///                | "best" column
///                | "sort" ( column | figure ) [ "up" | "down" ]
///                | "first" number
///     figure     = "count" | "best" | "mean" | "median"
///     value      = word | '"' anything '"'
///
/// Without a first word the rows are runs. All conditions must hold. Case and accents never count.
///
/// - A column is one of those that query_columns.h lists for the rows. Without a comparison it must
///   equal the value. A row that has no such value meets no condition on it.
/// - Names are met when every word of the value begins a word of theirs; in quotes, when it is one.
///   The order of the words does not count. A category or a crew is also met by another way of
///   writing it. "text" looks at all that is written about a row. A quote within quotes is doubled.
/// - Times are seconds (3.85, 3,85) or minutes and seconds (1:32.45); equal is equal to the
///   hundredth. Days are 2026-05-11, 2026-05 or 2026: "date<2026-05" is before May.
/// - A label is a word of annotation_labels.h, or "up" or "down". It may stand alone, for any
/// column
///   of the rows that knows it, or behind a column's name.
/// - "by" gives one row for each value of its columns, or each pair or triple of them: how many
/// rows
///   there are, and the least, mean and median of the column that "best" names, else of the rows'
///   own (total, time, seconds, lost, strokes). With "best" only rows with that value count, and
///   the groups stand in the order of their least one; else in that of their names or numbers.
/// - "best" without "by" gives the row with the least value; several where they are equal.
/// - "sort" orders from the least up, or down; rows without a value stand last. "first" ends the
///   list.
namespace kavela {

enum class Comparison : std::uint8_t { Equal, NotEqual, Less, AtMost, More, AtLeast };

/// One way in which a row can meet a condition.
struct Choice {
    const QueryColumn* column = nullptr; ///< null for anything written about the row
    double from = 0;                     ///< the value; the first day of a date
    double to = 0;                       ///< behind the last day of a date
};

struct Condition {
    std::vector<Choice> choices; ///< any of them
    Comparison comparison = Comparison::Equal;
    std::string value; ///< as it was written
    bool isQuoted = false;
    bool isBare = false; ///< a label that stands alone
};

/// The order of the rows asked for.
struct SortOrder {
    const QueryColumn* column = nullptr; ///< null for a figure of groups
    std::string_view figure;
    bool isDown = false;
};

struct Query {
    What what = What::Runs;
    std::vector<Condition> conditions;
    std::vector<const QueryColumn*> by;
    const QueryColumn* best = nullptr;
    std::optional<SortOrder> sort;
    std::optional<std::size_t> first;
};

/// At most so many columns make up a group.
inline constexpr std::size_t MostGroupColumns = 3;

/// The figures of a group, in the order of their columns.
inline constexpr std::string_view GroupFigures[] = {"count", "best", "mean", "median"};

/// A query with something in it that means nothing.
class QueryError : public std::runtime_error {
public:
    QueryError(std::string text, std::size_t place, std::size_t length,
               std::vector<std::string> nearest = {})
        : std::runtime_error(std::move(text)),
          m_place(place),
          m_length(length),
          m_nearest(std::move(nearest)) {}

    /// Bytes of the query before the fault, and in it; none where something is missing.
    [[nodiscard]] std::size_t place() const { return m_place; }
    [[nodiscard]] std::size_t length() const { return m_length; }
    /// Words that may have been meant, the nearest first.
    [[nodiscard]] const std::vector<std::string>& nearest() const { return m_nearest; }

private:
    std::size_t m_place;
    std::size_t m_length;
    std::vector<std::string> m_nearest;
};

/// Reads a query. Throws QueryError.
[[nodiscard]] Query parsedQuery(std::string_view text);

/// The query in the one way that the windows write it; it reads back as the same query.
[[nodiscard]] std::string textOf(const Query& query);

/// The words that can stand in a query about these rows: columns, clauses and labels.
[[nodiscard]] std::vector<std::string> queryWords(What what);

} // namespace kavela
