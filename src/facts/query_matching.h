#pragma once

#include "facts/query_text.h"

#include <vector>

namespace kavela {

/// Decides which rows meet the conditions of a query. Every text is looked at once.
class QueryMatcher {
public:
    /// Both must outlive it.
    QueryMatcher(const FactStore& facts, const Query& query);

    /// Whether a row meets all conditions that depend on its file, its run, or itself alone.
    [[nodiscard]] bool matches(const RowCursor& row, ColumnLevel level);

private:
    /// A condition with what is known of the texts that it asks about.
    struct Test {
        const Condition* condition = nullptr;
        ColumnLevel level = ColumnLevel::Row;
        std::vector<std::string> words; ///< of its value, folded
        std::string key;                ///< the same for all ways of writing it
        std::vector<signed char> known; ///< by text: 1 met, 0 not, -1 not yet looked at
    };

    [[nodiscard]] bool isMet(const RowCursor& row, Test& test);
    [[nodiscard]] bool isTextMet(TextId text, Test& test);
    [[nodiscard]] bool isMetBy(std::string_view text, const Test& test) const;
    [[nodiscard]] bool isAnyTextMet(const RowCursor& row, Test& test);
    [[nodiscard]] bool areNotesMet(const RunRow& run, Test& test);

    const FactStore& m_facts;
    What m_what;
    std::vector<Test> m_tests;
};

} // namespace kavela
