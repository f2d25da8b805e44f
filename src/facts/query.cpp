#include "facts/query.h"

#include "facts/groups.h"
#include "facts/query_groups.h"
#include "facts/query_matching.h"
#include "facts/query_order.h"
#include "facts/query_rows.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace kavela {

/// The work of answering one query.
class QueryRun {
public:
    QueryRun(const FactStore& facts, Query query) {
        m_answer.m_facts = &facts;
        m_answer.m_query = std::move(query);
    }

    /// Of one group of another answer, which is told by any of its rows.
    QueryRun(const QueryAnswer& groups, const FoundRow& member)
        : QueryRun(groups.facts(), groups.query()) {
        m_by = query().by;
        m_needed = query().best;
        RowCursor cursor = cursorOf(facts(), member.run);
        if (!groups.m_ranks.empty())
            cursor.rank = groups.m_ranks[member.run];
        atRow(query().what, cursor, member.entry,
              [&](const RowCursor& row) { m_only = groupKeyOf(m_by, row); });
        Query& rows = m_answer.m_query;
        rows.by.clear();
        rows.first.reset();
        rows.best = nullptr;
        rows.sort.reset();
        if (const QueryColumn* const column =
                groups.query().best ? groups.query().best : measuredColumn(rows.what))
            rows.sort = SortOrder{column, {}, false};
    }

    QueryAnswer run() {
        if (asksForRanks())
            m_answer.m_ranks = ranksOf(facts(), groupsOf(facts()));
        if (!query().by.empty())
            m_groups.emplace(query().by, measured());
        else if (query().sort)
            m_sorted = query().sort->column;
        collect();
        if (m_groups)
            finishGroups();
        nameColumns();
        sortRows();
        if (query().first && m_answer.m_rows.size() > *query().first)
            m_answer.m_rows.resize(*query().first);
        return std::move(m_answer);
    }

private:
    [[nodiscard]] const FactStore& facts() const { return *m_answer.m_facts; }
    [[nodiscard]] const Query& query() const { return m_answer.m_query; }
    [[nodiscard]] const QueryColumn* measured() const {
        return query().best ? query().best : measuredColumn(query().what);
    }

    [[nodiscard]] bool asksForRanks() const {
        const auto isRank = [](const QueryColumn* column) {
            return column && column->name == "rank";
        };
        return isRank(m_needed) || std::ranges::any_of(m_by, isRank) || isRank(query().best) ||
               (query().sort && isRank(query().sort->column)) ||
               std::ranges::any_of(query().by, isRank) ||
               std::ranges::any_of(query().conditions, [&](const Condition& condition) {
                   return isRank(condition.choices.front().column);
               });
    }

    void collect() {
        QueryMatcher matcher(facts(), query());
        for (const FileRow& file : facts().files()) {
            for (std::uint32_t i = 0; i < file.runs.count; ++i) {
                RowCursor cursor = cursorOf(facts(), file.runs.first + i);
                if (i == 0 && !matcher.matches(cursor, ColumnLevel::File))
                    break;
                if (!m_answer.m_ranks.empty())
                    cursor.rank = m_answer.m_ranks[cursor.runIndex];
                if (matcher.matches(cursor, ColumnLevel::Run))
                    collectRun(cursor, matcher);
            }
        }
    }

    void collectRun(RowCursor& cursor, QueryMatcher& matcher) {
        if (m_groups)
            m_groups->startRun();
        forEachRow(query().what, cursor, [&](const RowCursor& row, std::uint32_t entry) {
            if (!matcher.matches(row, ColumnLevel::Row))
                return;
            const QueryColumn* const needed = query().best ? query().best : m_needed;
            const double value = needed ? needed->number(row) : 0;
            if (std::isnan(value))
                return;
            if (m_only && groupKeyOf(m_by, row) != *m_only)
                return;
            const FoundRow found{static_cast<std::uint32_t>(row.runIndex), entry, 0};
            if (m_groups)
                m_groups->add(row, found);
            else if (!query().best || isAmongBest(value))
                keep(row, found);
        });
    }

    /// Whether no row before had a lower value; those with a higher one are forgotten.
    bool isAmongBest(double value) {
        if (!m_answer.m_rows.empty() && value > m_least)
            return false;
        if (value < m_least || m_answer.m_rows.empty()) {
            m_least = value;
            m_answer.m_rows.clear();
            m_numbers.clear();
            m_texts.clear();
        }
        return true;
    }

    /// What it is sorted by is noted while its row is at hand: finding that again would cost as
    /// much as all the search.
    void keep(const RowCursor& row, const FoundRow& found) {
        m_answer.m_rows.push_back(found);
        if (m_sorted && m_sorted->isText())
            m_texts.push_back(m_sorted->text(row));
        else if (m_sorted)
            m_numbers.push_back(m_sorted->number(row));
    }

    void finishGroups() {
        m_groups->finish();
        m_answer.m_groups = std::move(m_groups->groups());
        m_answer.m_rows = std::move(m_groups->rows());
    }

    void nameColumns() {
        if (!query().by.empty()) {
            for (const QueryColumn* const column : query().by)
                m_answer.m_columns.push_back({std::string(column->name), column->unit, column});
            for (const std::string_view figure : GroupFigures) {
                const bool isCount = figure == GroupFigures[0];
                if (isCount || measured())
                    m_answer.m_columns.push_back({std::string(figure),
                                                  isCount ? "" : measured()->unit,
                                                  isCount ? nullptr : measured(), true});
            }
            return;
        }
        for (const std::string_view name : shownColumns(query().what))
            show(columnNamed(query().what, name));
        for (const Condition& condition : query().conditions)
            for (const Choice& choice : condition.choices)
                show(choice.column);
        show(query().best);
        if (query().sort)
            show(query().sort->column);
    }

    /// Adds a column that is not there yet.
    void show(const QueryColumn* column) {
        // Days are shown; the year and the month of one would say them again.
        if (!column || column->name == "year" || column->name == "month")
            return;
        const bool isShown = std::ranges::any_of(
            m_answer.m_columns, [&](const FoundColumn& shown) { return shown.column == column; });
        if (!isShown)
            m_answer.m_columns.push_back({std::string(column->name), column->unit, column});
    }

    void sortRows() {
        if (m_groups)
            return sortGroups();
        if (m_sorted)
            sortBy(m_sorted->isText() ? naturalPlaces(facts(), m_texts) : m_numbers,
                   query().sort->isDown, query().first.value_or(m_answer.m_rows.size()));
    }

    void sortGroups() {
        if (!query().sort) {
            if (query().best)
                sortBy(figures(GroupFigures[1]), false);
            else
                for (std::size_t i = query().by.size(); i-- > 0;)
                    sortBy(keysOfGroups(i), false);
            return;
        }
        const SortOrder& order = *query().sort;
        if (!order.column)
            return sortBy(figures(order.figure), order.isDown);
        const auto column = std::ranges::find(query().by, order.column) - query().by.begin();
        sortBy(keysOfGroups(static_cast<std::size_t>(column)), order.isDown);
    }

    /// Rows with equal values keep their order; those without one go to the end.
    void sortBy(const std::vector<double>& values, bool isDown,
                std::size_t most = std::numeric_limits<std::size_t>::max()) {
        std::vector<FoundRow> rows;
        rows.reserve(values.size());
        for (const std::uint32_t at : orderOf(values, isDown, most))
            rows.push_back(m_answer.m_rows[at]);
        m_answer.m_rows = std::move(rows);
    }

    [[nodiscard]] std::vector<double> figures(std::string_view figure) const {
        std::vector<double> values;
        for (const FoundRow& row : m_answer.m_rows) {
            const FoundGroup& group = m_answer.m_groups[row.group];
            values.push_back(figure == GroupFigures[0]   ? group.count
                             : figure == GroupFigures[1] ? group.best
                             : figure == GroupFigures[2] ? group.mean
                                                         : group.median);
        }
        return values;
    }

    [[nodiscard]] std::vector<double> keysOfGroups(std::size_t column) const {
        std::vector<double> numbers;
        std::vector<TextId> texts;
        for (const FoundRow& row : m_answer.m_rows) {
            const FoundValue& key = m_answer.m_groups[row.group].keys[column];
            numbers.push_back(key.number);
            texts.push_back(key.text);
        }
        return query().by[column]->isText() ? naturalPlaces(facts(), texts) : numbers;
    }

    QueryAnswer m_answer;
    std::optional<RowGroups> m_groups;
    const QueryColumn* m_sorted = nullptr; ///< what the rows are sorted by, where they are
    std::vector<double> m_numbers;         ///< its values by row, or
    std::vector<TextId> m_texts;           ///< its texts
    double m_least = NotKnown;             ///< of the column of which the best is wanted
    std::optional<GroupKey> m_only;        ///< where the rows of one group are wanted
    std::vector<const QueryColumn*> m_by;  ///< what makes that group
    const QueryColumn* m_needed = nullptr; ///< its rows have a value there
};

QueryAnswer answer(const FactStore& facts, Query query) {
    return QueryRun(facts, std::move(query)).run();
}

QueryAnswer rowsOfGroup(const QueryAnswer& groups, std::size_t group) {
    return QueryRun(groups, groups.m_rows[group]).run();
}

} // namespace kavela
