#pragma once

#include "facts/query_groups.h"
#include "facts/query_matching.h"
#include "facts/rows_to_sort.h"

#include <optional>
#include <span>
#include <vector>

namespace kavela {

/// What is looked for, in all parts of a store alike. All that it refers to must outlive them.
struct RowSearch {
    const FactStore& facts;
    const Query& query;
    const std::vector<std::optional<int>>& ranks; ///< by run, where ranks are asked for
    const QueryColumn* measured = nullptr;        ///< what figures of groups are of
    const QueryColumn* sorted = nullptr;          ///< what rows are sorted by, where they are
    const QueryColumn* needed = nullptr;          ///< rows have a value there
    std::vector<const QueryColumn*> by; ///< what makes the group of which alone rows are wanted
    std::optional<GroupKey> only;       ///< and that group
};

/// Finds the rows of some files of a store, beside other parts that have the files behind them.
class QueryPart {
public:
    explicit QueryPart(const RowSearch& search);

    void collect(std::span<const FileRow> files);

    /// Of the column of which the best is wanted: the least value that there was.
    [[nodiscard]] double least() const { return m_least; }
    [[nodiscard]] RowsToSort& rows() { return m_rows; }
    /// Where groups are asked for.
    [[nodiscard]] std::optional<RowGroups>& groups() { return m_groups; }

private:
    void collectRun(RowCursor& cursor);
    [[nodiscard]] bool isAmongBest(double value);

    const RowSearch& m_search;
    QueryMatcher m_matcher;
    std::optional<RowGroups> m_groups;
    RowsToSort m_rows;
    double m_least = NotKnown;
};

} // namespace kavela
