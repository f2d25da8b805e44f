#pragma once

#include "facts/query_text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Answers queries over the facts of a season.
namespace kavela {

/// A row that was found, and where it is to be seen.
struct FoundRow {
    std::uint32_t run = 0;   ///< in the store
    std::uint32_t entry = 0; ///< of the run's rows of the kind asked for, from 0
    std::uint32_t group = 0; ///< place of its figures, where groups were asked for
};

/// Where a row is to be seen.
struct FoundPlace {
    std::size_t run = 0;                ///< in the store
    std::optional<std::size_t> section; ///< from 1
    std::optional<std::size_t> gate;    ///< from 1
    std::optional<std::size_t> entry;   ///< of the run's penalties, losses or tags, from 0
    std::size_t film = 0;               ///< of the run's films
    double at = NotKnown;               ///< seconds of that film
};

/// One value: a number, or a text where the column has texts.
struct FoundValue {
    double number = NotKnown;
    TextId text = 0;
};

/// What a column says of a row.
[[nodiscard]] FoundValue foundValue(const QueryColumn& column, const RowCursor& row);

/// A column of an answer.
struct FoundColumn {
    std::string name;
    std::string_view unit;
    const QueryColumn* column = nullptr; ///< null for how many rows a group has
    bool isFigure = false;               ///< of groups
};

/// The figures of a group.
struct FoundGroup {
    std::vector<FoundValue> keys; ///< by column of `by`
    double count = 0;
    double best = NotKnown;
    double mean = NotKnown;
    double median = NotKnown;
};

/// An answer. Values are looked up as they are asked for, so that a long list costs little; the
/// store must outlive it and stay as it is.
class QueryAnswer {
public:
    [[nodiscard]] const Query& query() const { return m_query; }
    [[nodiscard]] const std::vector<FoundColumn>& columns() const { return m_columns; }
    [[nodiscard]] std::size_t size() const { return m_rows.size(); }
    [[nodiscard]] FoundValue value(std::size_t row, std::size_t column) const;
    /// The value as a query writes it: hundredths of seconds, days, labels; empty where there is
    /// none.
    [[nodiscard]] std::string text(std::size_t row, std::size_t column) const;
    /// Of a group: where its best row is, or its first.
    [[nodiscard]] FoundPlace place(std::size_t row) const;
    [[nodiscard]] const FactStore& facts() const { return *m_facts; }

private:
    friend class QueryRun;
    friend QueryAnswer rowsOfGroup(const QueryAnswer& groups, std::size_t group);

    const FactStore* m_facts = nullptr;
    Query m_query;
    std::vector<FoundColumn> m_columns;
    std::vector<FoundRow> m_rows;
    std::vector<FoundGroup> m_groups;
    std::vector<std::optional<int>> m_ranks; ///< by run, where ranks are asked for
};

[[nodiscard]] QueryAnswer answer(const FactStore& facts, Query query);

/// The rows that one of the groups of an answer is made of, the one with the least value first.
/// The store must be the same still.
[[nodiscard]] QueryAnswer rowsOfGroup(const QueryAnswer& groups, std::size_t group);

} // namespace kavela
