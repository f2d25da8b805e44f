#include "facts/query.h"

#include "common/parallel.h"
#include "facts/groups.h"
#include "facts/query_order.h"
#include "facts/query_part.h"
#include "facts/query_rows.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <thread>
#include <utility>

namespace kavela {

namespace {

/// Fewer runs are searched faster than a thread is started.
constexpr std::size_t LeastRunsOfPart = 4096;
constexpr std::size_t MostParts = 8;

/// Files of about as many runs each, one after the other: each part for a core of its own.
std::vector<std::span<const FileRow>> searchedParts(const FactStore& facts) {
    const std::span<const FileRow> files = facts.files();
    const std::size_t runs = facts.runs().size();
    const std::size_t cores =
        std::clamp<std::size_t>(std::thread::hardware_concurrency(), 2, MostParts);
    const std::size_t count = std::clamp<std::size_t>(runs / LeastRunsOfPart, 1, cores);
    std::vector<std::span<const FileRow>> parts;
    std::size_t first = 0;
    for (std::size_t part = 1; part <= count; ++part) {
        std::size_t end = part == count ? files.size() : first;
        while (end < files.size() && files[end].runs.first < part * runs / count)
            ++end;
        parts.push_back(files.subspan(first, end - first));
        first = end;
    }
    return parts;
}

} // namespace

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
        collect();
        nameColumns();
        if (!query().by.empty())
            sortGroups();
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
        const bool isSorted = query().by.empty() && query().sort;
        const RowSearch search{facts(),
                               query(),
                               m_answer.m_ranks,
                               measured(),
                               isSorted ? query().sort->column : nullptr,
                               m_needed,
                               m_by,
                               m_only};
        const auto files = searchedParts(facts());
        std::vector<QueryPart> parts;
        parts.reserve(files.size());
        for (std::size_t i = 0; i < files.size(); ++i)
            parts.emplace_back(search);
        parallelFor(files.size(), [&](std::size_t part) { parts[part].collect(files[part]); });
        if (query().by.empty())
            takeRows(parts);
        else
            takeGroups(parts);
    }

    /// Where the best is wanted, of those parts alone that have it.
    void takeRows(std::vector<QueryPart>& parts) {
        double least = NotKnown;
        for (const QueryPart& part : parts)
            least = std::fmin(least, part.least());
        std::vector<RowsToSort> rows;
        for (QueryPart& part : parts)
            if (std::isnan(least) || part.least() == least)
                rows.push_back(std::move(part.rows()));
        m_answer.m_rows =
            RowsToSort::inOrder(facts(), rows, query().sort && query().sort->isDown,
                                query().first.value_or(std::numeric_limits<std::size_t>::max()));
    }

    void takeGroups(std::vector<QueryPart>& parts) {
        RowGroups groups = std::move(*parts.front().groups());
        for (std::size_t i = 1; i < parts.size(); ++i)
            groups.add(std::move(*parts[i].groups()));
        groups.finish();
        m_answer.m_groups = std::move(groups.groups());
        m_answer.m_rows = std::move(groups.rows());
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
    void sortBy(const std::vector<double>& values, bool isDown) {
        std::vector<FoundRow> rows;
        rows.reserve(values.size());
        for (const std::uint32_t at : orderOf(values, isDown))
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
