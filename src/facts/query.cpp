#include "facts/query.h"

#include "common/folded_text.h"
#include "common/number_text.h"
#include "facts/groups.h"
#include "facts/query_matching.h"
#include "facts/query_rows.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cmath>
#include <numeric>
#include <unordered_map>

namespace kavela {

/// What makes a group of rows: by column the text's key or the number's bits.
using GroupKey = std::array<std::uint64_t, MostGroupColumns>;

/// Of a class with a name of its own, which a batch of sources allows no nameless members.
struct HashOfGroup {
    std::size_t operator()(const GroupKey& key) const {
        std::uint64_t hash = 0;
        for (const std::uint64_t part : key)
            hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>(hash ^ (hash >> 32U));
    }
};

namespace {

FoundValue valueOf(const QueryColumn& column, const RowCursor& row) {
    FoundValue value;
    if (column.isText())
        value.text = column.text(row);
    else
        value.number = column.number(row);
    return value;
}

std::uint64_t keyPart(const QueryColumn& column, const RowCursor& row) {
    if (column.isText())
        return column.key ? column.key(row) : column.text(row);
    const double number = column.number(row);
    return std::bit_cast<std::uint64_t>(std::isnan(number) ? NotKnown : number + 0.0);
}

GroupKey groupKeyOf(const std::vector<const QueryColumn*>& by, const RowCursor& row) {
    GroupKey key{};
    for (std::size_t i = 0; i < by.size(); ++i)
        key[i] = keyPart(*by[i], row);
    return key;
}

double medianOf(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    return (*middle + *std::max_element(values.begin(), middle)) / 2;
}

std::string dayText(double day) {
    const std::chrono::year_month_day date{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(day)))};
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

/// The cursor at one of a run's rows, for as long as `use` runs.
template <class Use>
void atRow(What what, RowCursor cursor, std::uint32_t entry, const Use& use) {
    forEachRow(what, cursor, [&](const RowCursor& row, std::uint32_t at) {
        if (at == entry)
            use(row);
    });
}

double beginOfSection(const RowCursor& row, std::size_t section) {
    const auto sections = row.facts->sectionsOf(*row.run);
    if (section <= 1 || section > sections.size())
        return row.run->start;
    return sections[section - 2].end;
}

std::optional<std::size_t> gateOf(const RowCursor& row) {
    const std::int64_t gate = row.gate ? row.gate->gate : row.penalty ? row.penalty->gate : 0;
    return gate > 0 ? std::optional(static_cast<std::size_t>(gate)) : std::nullopt;
}

/// Of a penalty that was described, a loss or a tag: its place in the list of its run.
std::optional<std::size_t> entryOf(const RowCursor& row) {
    const auto placeIn = [](const auto rows, const auto* of) -> std::optional<std::size_t> {
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (&rows[i] == of)
                return i;
        return std::nullopt;
    };
    return row.loss      ? placeIn(row.facts->lossesOf(*row.run), row.loss)
           : row.tag     ? placeIn(row.facts->tagsOf(*row.run), row.tag)
           : row.penalty ? placeIn(row.facts->penaltiesOf(*row.run), row.penalty)
                         : std::nullopt;
}

FoundPlace placeOf(What what, const RowCursor& row) {
    FoundPlace place;
    place.run = row.runIndex;
    place.gate = gateOf(row);
    place.entry = entryOf(row);
    std::size_t section = row.section;
    if (row.gate)
        section = sectionOfGate(*row.facts, *row.file, row.gate->gate);
    else if (row.penalty && section == 0)
        section = sectionOfGate(*row.facts, *row.file, row.penalty->gate);
    if (section > 0)
        place.section = section;
    place.at = beginOfSection(row, section);
    if (row.gate && !std::isnan(row.gate->at))
        place.at = row.gate->at;
    if (what == What::Losses)
        place.at = row.loss->at;
    if (what == What::Tags) {
        place.at = row.tag->at;
        place.film = row.tag->film > 0 ? static_cast<std::size_t>(row.tag->film) : 0;
    }
    return place;
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
        if (!query().by.empty())
            finishGroups();
        else if (query().best)
            keepBest();
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
        m_groupOfRun.reset();
        forEachRow(query().what, cursor, [&](const RowCursor& row, std::uint32_t entry) {
            if (!matcher.matches(row, ColumnLevel::Row))
                return;
            const QueryColumn* const needed = query().best ? query().best : m_needed;
            if (needed && std::isnan(needed->number(row)))
                return;
            if (m_only && groupKeyOf(m_by, row) != *m_only)
                return;
            const FoundRow found{static_cast<std::uint32_t>(row.runIndex), entry, 0};
            if (query().by.empty())
                m_answer.m_rows.push_back(found);
            else
                addToGroup(row, found);
        });
    }

    void addToGroup(const RowCursor& row, FoundRow found) {
        const std::size_t at = groupOf(row);
        const QueryColumn* const column = measured();
        const double value = column ? column->number(row) : NotKnown;
        if (at == m_answer.m_groups.size()) {
            found.group = static_cast<std::uint32_t>(at);
            m_answer.m_rows.push_back(found);
            m_values.emplace_back();
            FoundGroup& group = m_answer.m_groups.emplace_back();
            for (const QueryColumn* const key : query().by)
                group.keys.push_back(valueOf(*key, row));
        }
        FoundGroup& group = m_answer.m_groups[at];
        ++group.count;
        if (std::isnan(value))
            return;
        m_values[at].push_back(value);
        if (!(value >= group.best)) {
            group.best = value;
            m_answer.m_rows[at].run = found.run;
            m_answer.m_rows[at].entry = found.entry;
        }
    }

    /// The place of a row's group; behind the last one for a new one. Where the run alone decides,
    /// it is looked up once for all its rows.
    std::size_t groupOf(const RowCursor& row) {
        if (m_groupOfRun)
            return *m_groupOfRun;
        const GroupKey key = groupKeyOf(query().by, row);
        const bool isOfRun = std::ranges::none_of(query().by, [](const QueryColumn* column) {
            return column->level == ColumnLevel::Row;
        });
        const auto [place, isNew] = m_places.try_emplace(key, m_answer.m_groups.size());
        if (isOfRun)
            m_groupOfRun = place->second;
        return place->second;
    }

    void finishGroups() {
        for (std::size_t i = 0; i < m_values.size(); ++i) {
            std::vector<double>& values = m_values[i];
            if (values.empty())
                continue;
            FoundGroup& group = m_answer.m_groups[i];
            group.mean = std::accumulate(values.begin(), values.end(), 0.0) /
                         static_cast<double>(values.size());
            group.median = medianOf(values);
        }
    }

    [[nodiscard]] double numberAt(const QueryColumn& column, const FoundRow& row) const {
        double number = NotKnown;
        RowCursor cursor = cursorOf(facts(), row.run);
        if (!m_answer.m_ranks.empty())
            cursor.rank = m_answer.m_ranks[row.run];
        if (column.level != ColumnLevel::Row)
            return column.number(cursor);
        atRow(query().what, cursor, row.entry,
              [&](const RowCursor& at) { number = column.number(at); });
        return number;
    }

    void keepBest() {
        const std::vector<double> values = numbersOf(*query().best);
        const auto least = std::ranges::min_element(values);
        std::vector<FoundRow> best;
        for (std::size_t i = 0; i < values.size(); ++i)
            if (values[i] <= *least)
                best.push_back(m_answer.m_rows[i]);
        m_answer.m_rows = std::move(best);
    }

    [[nodiscard]] std::vector<double> numbersOf(const QueryColumn& column) const {
        std::vector<double> numbers;
        numbers.reserve(m_answer.m_rows.size());
        for (const FoundRow& row : m_answer.m_rows)
            numbers.push_back(numberAt(column, row));
        return numbers;
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
        const bool isGrouped = !query().by.empty();
        if (!query().sort) {
            if (isGrouped && query().best)
                sortBy(figures(GroupFigures[1]), false);
            else if (isGrouped)
                for (std::size_t i = query().by.size(); i-- > 0;)
                    sortBy(keysOfGroups(i), false);
            return;
        }
        const SortOrder& order = *query().sort;
        if (!order.column) {
            sortBy(figures(order.figure), order.isDown);
        } else if (isGrouped) {
            const auto column = std::ranges::find(query().by, order.column) - query().by.begin();
            sortBy(keysOfGroups(static_cast<std::size_t>(column)), order.isDown);
        } else {
            sortBy(order.column->isText() ? placesOfTexts(*order.column) : numbersOf(*order.column),
                   order.isDown);
        }
    }

    /// Rows with equal values keep their order; those without one go to the end.
    void sortBy(const std::vector<double>& values, bool isDown) {
        std::vector<std::size_t> order(values.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
            if (std::isnan(values[a]) || std::isnan(values[b]))
                return !std::isnan(values[a]) && std::isnan(values[b]);
            return isDown ? values[a] > values[b] : values[a] < values[b];
        });
        std::vector<FoundRow> rows;
        rows.reserve(order.size());
        for (const std::size_t at : order)
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
        return query().by[column]->isText() ? inNaturalOrder(texts) : numbers;
    }

    [[nodiscard]] std::vector<double> placesOfTexts(const QueryColumn& column) const {
        std::vector<TextId> texts;
        texts.reserve(m_answer.m_rows.size());
        for (const FoundRow& row : m_answer.m_rows) {
            const RowCursor cursor = cursorOf(facts(), row.run);
            if (column.level != ColumnLevel::Row)
                texts.push_back(column.text(cursor));
            else
                atRow(query().what, cursor, row.entry,
                      [&](const RowCursor& at) { texts.push_back(column.text(at)); });
        }
        return inNaturalOrder(texts);
    }

    /// By text its place among all of them in a list for people; nothing for an empty one.
    [[nodiscard]] std::vector<double> inNaturalOrder(const std::vector<TextId>& texts) const {
        std::vector<TextId> different = texts;
        std::ranges::sort(different);
        different.erase(std::unique(different.begin(), different.end()), different.end());
        std::ranges::sort(different, [&](TextId a, TextId b) {
            return isNaturallyBefore(facts().text(a), facts().text(b));
        });
        std::unordered_map<TextId, double> places;
        for (const TextId text : different)
            places.emplace(text, static_cast<double>(places.size()));
        std::vector<double> found;
        found.reserve(texts.size());
        for (const TextId text : texts)
            found.push_back(text == 0 ? NotKnown : places.at(text));
        return found;
    }

    QueryAnswer m_answer;
    std::unordered_map<GroupKey, std::size_t, HashOfGroup> m_places;
    std::vector<std::vector<double>> m_values; ///< by group
    std::optional<std::size_t> m_groupOfRun;
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

FoundValue QueryAnswer::value(std::size_t row, std::size_t column) const {
    const FoundRow& found = m_rows[row];
    const FoundColumn& asked = m_columns[column];
    if (!m_query.by.empty()) {
        const FoundGroup& group = m_groups[found.group];
        const std::array figures{group.count, group.best, group.mean, group.median};
        return asked.isFigure ? FoundValue{figures[column - group.keys.size()], 0}
                              : group.keys[column];
    }
    RowCursor cursor = cursorOf(*m_facts, found.run);
    if (!m_ranks.empty())
        cursor.rank = m_ranks[found.run];
    FoundValue value;
    if (asked.column->level != ColumnLevel::Row)
        return valueOf(*asked.column, cursor);
    atRow(m_query.what, cursor, found.entry,
          [&](const RowCursor& at) { value = valueOf(*asked.column, at); });
    return value;
}

std::string QueryAnswer::text(std::size_t row, std::size_t column) const {
    const FoundValue found = value(row, column);
    const QueryColumn* const asked = m_columns[column].column;
    const bool isFigure = m_columns[column].isFigure;
    if (asked && asked->isText() && !isFigure)
        return std::string(m_facts->text(found.text));
    if (std::isnan(found.number))
        return {};
    if (!asked)
        return plainText(found.number);
    if (isFigure || asked->kind == ColumnKind::Measure)
        return hundredthsText(found.number);
    if (asked->kind == ColumnKind::Day)
        return dayText(found.number);
    if (asked->kind == ColumnKind::Number)
        return plainText(found.number);
    return valueWord(*asked, found.number);
}

FoundPlace QueryAnswer::place(std::size_t row) const {
    FoundPlace place;
    atRow(m_query.what, cursorOf(*m_facts, m_rows[row].run), m_rows[row].entry,
          [&](const RowCursor& at) { place = placeOf(m_query.what, at); });
    return place;
}

} // namespace kavela
