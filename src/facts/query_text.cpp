#include "facts/query_text.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "common/typed_number.h"
#include "facts/query_tokens.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace kavela {

namespace {

using Kind = QueryToken::Kind;

constexpr std::string_view TextWord = "text";
constexpr std::array<std::string_view, 4> Clauses{"by", "best", "sort", "first"};
constexpr std::array<std::string_view, 6> ComparisonSigns{"=", "!=", "<", "<=", ">", ">="};

bool isClause(std::string_view word) {
    return std::ranges::count(Clauses, word) > 0;
}

std::string columnNeeded(std::string_view taker) {
    return say("\"{}\" needs the name of a column.", taker);
}

/// The words for the codes of a column.
std::vector<std::string> valueWords(const QueryColumn& column) {
    if (column.kind == ColumnKind::Way)
        return {"up", "down"};
    std::vector<std::string> words;
    for (const Label& label : labelsOf(*column.labels))
        words.emplace_back(label.id);
    return words;
}

bool hasWords(const QueryColumn& column) {
    return column.kind == ColumnKind::Label || column.kind == ColumnKind::Way;
}

/// The code behind a word, whatever its case.
std::optional<double> codeOfWord(const QueryColumn& column, std::string_view word) {
    const std::string wanted = folded(word);
    const std::vector<std::string> words = valueWords(column);
    const auto found = std::ranges::find_if(
        words, [&](const std::string& known) { return folded(known) == wanted; });
    if (found == words.end())
        return std::nullopt;
    const auto code = static_cast<double>(found - words.begin());
    return column.kind == ColumnKind::Way ? 1 - code : code;
}

/// The days of "2026-05-11", "2026-05" or "2026": the first, and the one behind the last.
std::optional<std::pair<double, double>> daysOf(std::string_view text) {
    std::array<int, 3> parts{0, 1, 1};
    std::size_t count = 0;
    while (count < parts.size()) {
        const std::size_t end = std::min(text.find('-'), text.size());
        const auto part = typedWhole(text.substr(0, end));
        if (!part || *part < 1 || *part > 9999)
            return std::nullopt;
        parts[count++] = static_cast<int>(*part);
        if (end == text.size())
            break;
        text.remove_prefix(end + 1);
        if (count == parts.size())
            return std::nullopt;
    }
    using namespace std::chrono;
    const auto year = std::chrono::year(parts[0]);
    const auto month = std::chrono::month(static_cast<unsigned>(parts[1]));
    const year_month_day first(year, month, std::chrono::day(static_cast<unsigned>(parts[2])));
    if (!first.ok())
        return std::nullopt;
    const sys_days behind = count == 3   ? sys_days(first) + days(1)
                            : count == 2 ? sys_days(first + months(1))
                                         : sys_days(first + years(1));
    return std::pair<double, double>(sys_days(first).time_since_epoch().count(),
                                     behind.time_since_epoch().count());
}

std::optional<double> numberOf(std::string_view text) {
    return text.find(':') == std::string_view::npos ? typedReal(text) : typedSeconds(text);
}

class Parser {
public:
    explicit Parser(std::string_view text) : m_text(text), m_tokens(queryTokens(text)) {}

    Query run() {
        if (!m_tokens.empty() && m_tokens.front().kind == Kind::Word)
            if (const auto what = whatOf(folded(m_tokens.front().text))) {
                m_query.what = *what;
                ++m_at;
            }
        while (m_at < m_tokens.size())
            parseNext();
        settleSort();
        return std::move(m_query);
    }

private:
    void parseNext() {
        const QueryToken& token = m_tokens[m_at++];
        if (token.kind != Kind::Word)
            fail(token.kind == Kind::Quoted
                     ? say("Before a value stands the name of its column, such as athlete or text.")
                     : say("Before \"{}\" stands the name of a column.", token.text),
                 token);
        const std::string word = folded(token.text);
        if (word == "by")
            parseBy();
        else if (word == "best")
            parseBest(token);
        else if (word == "sort")
            parseSort(token);
        else if (word == "first")
            parseFirst();
        else if (word == TextWord)
            parseText(token);
        else if (const QueryColumn* const column = columnNamed(m_query.what, nameOfColumn(word)))
            parseColumn(*column, token);
        else
            parseLabel(token);
    }

    static std::string nameOfColumn(const std::string& word) {
        return word == "category" ? "cat" : word == "crew" ? "athlete" : word;
    }

    [[noreturn]] void fail(const std::string& text, const QueryToken& token,
                           std::vector<std::string> nearest = {}) const {
        throw QueryError(text, token.place, token.length, std::move(nearest));
    }

    [[noreturn]] void failAtEnd(const std::string& text) const {
        throw QueryError(text, m_text.size(), 0);
    }

    [[nodiscard]] bool isNext(Kind kind) const {
        return m_at < m_tokens.size() && m_tokens[m_at].kind == kind;
    }

    const QueryToken& takeValue(std::string_view taker) {
        if (m_at == m_tokens.size())
            failAtEnd(say("\"{}\" needs a value.", taker));
        const QueryToken& token = m_tokens[m_at++];
        const bool isValue = token.kind == Kind::Quoted ||
                             (token.kind == Kind::Word && !isClause(folded(token.text)));
        if (!isValue)
            fail(say("\"{}\" needs a value; one of our own words stands in quotes.", taker), token);
        return token;
    }

    const QueryColumn& takeColumn(std::string_view taker) {
        if (m_at == m_tokens.size())
            failAtEnd(columnNeeded(taker));
        const QueryToken& token = m_tokens[m_at++];
        if (token.kind != Kind::Word)
            fail(columnNeeded(taker), token);
        const QueryColumn* const column =
            columnNamed(m_query.what, nameOfColumn(folded(token.text)));
        if (!column)
            failUnknown(token, columnNames());
        return *column;
    }

    [[nodiscard]] std::vector<std::string> columnNames() const {
        std::vector<std::string> names;
        for (const QueryColumn& column : queryColumns())
            if (column.isOf(m_query.what))
                names.emplace_back(column.name);
        return names;
    }

    Comparison takeComparison() {
        if (!isNext(Kind::Comparison))
            return Comparison::Equal;
        const auto sign = std::ranges::find(ComparisonSigns, m_tokens[m_at++].text);
        return static_cast<Comparison>(sign - ComparisonSigns.begin());
    }

    void parseText(const QueryToken& name) {
        Condition condition{{Choice{}}, {}, {}, false, false};
        takeName(condition, name);
        m_query.conditions.push_back(std::move(condition));
    }

    /// A value that is a text.
    void takeName(Condition& condition, const QueryToken& name) {
        condition.comparison = takeComparison();
        if (condition.comparison > Comparison::NotEqual)
            fail(say("\"{}\" is a text: it is compared by = and != alone.", name.text),
                 m_tokens[m_at - 1]);
        const QueryToken& value = takeValue(name.text);
        condition.value = value.text;
        condition.isQuoted = value.kind == Kind::Quoted;
        if (value.text.find_first_not_of(" \t\r\n") == std::string::npos)
            fail(say("There is nothing in the quotes."), value);
    }

    void parseColumn(const QueryColumn& column, const QueryToken& name) {
        Condition condition{{Choice{&column}}, {}, {}, false, false};
        if (column.isText()) {
            takeName(condition, name);
        } else {
            condition.comparison = takeComparison();
            if (hasWords(column) && condition.comparison > Comparison::NotEqual)
                fail(say("\"{}\" has words for values: it is compared by = and != alone.",
                         name.text),
                     m_tokens[m_at - 1]);
            const QueryToken& value = takeValue(name.text);
            condition.value = value.text;
            condition.isQuoted = value.kind == Kind::Quoted;
            takeNumber(condition.choices.front(), value);
        }
        m_query.conditions.push_back(std::move(condition));
    }

    void takeNumber(Choice& choice, const QueryToken& value) const {
        const QueryColumn& column = *choice.column;
        if (column.kind == ColumnKind::Day) {
            const auto days = daysOf(value.text);
            if (!days)
                fail(say("\"{}\" is no day: write 2026-05-11, or 2026-05, or 2026.", value.text),
                     value);
            choice.from = days->first;
            choice.to = days->second;
            return;
        }
        auto number = hasWords(column) ? codeOfWord(column, value.text) : numberOf(value.text);
        if (!number && column.kind == ColumnKind::Label)
            if (const auto code = typedWhole(value.text))
                number = static_cast<double>(*code);
        if (!number && hasWords(column))
            fail(say("\"{}\" is no {}.", value.text, column.name), value,
                 nearestOr(value.text, valueWords(column)));
        if (!number)
            fail(say("\"{}\" is no number.", value.text), value);
        choice.from = choice.to = *number;
    }

    /// Where nothing is near, all there are, as long as they are few.
    static std::vector<std::string> nearestOr(std::string_view word,
                                              std::vector<std::string> words) {
        std::vector<std::string> nearest = nearestWords(word, words);
        return nearest.empty() ? std::move(words) : std::move(nearest);
    }

    /// A label that stands alone.
    void parseLabel(const QueryToken& token) {
        Condition condition;
        condition.value = token.text;
        condition.isBare = true;
        for (const QueryColumn& column : queryColumns())
            if (column.isOf(m_query.what) && hasWords(column))
                if (const auto code = codeOfWord(column, token.text))
                    condition.choices.push_back({&column, *code, *code});
        if (condition.choices.empty())
            failUnknown(token, queryWords(m_query.what));
        m_query.conditions.push_back(std::move(condition));
    }

    [[noreturn]] void failUnknown(const QueryToken& token, std::vector<std::string> words) const {
        const std::string name = nameOfColumn(folded(token.text));
        std::string homes;
        for (std::size_t i = 0; i < WhatCount; ++i)
            if (const auto what = static_cast<What>(i);
                columnNamed(what, name) || isLabelOf(what, name))
                homes += (homes.empty() ? "" : ", ") + std::string(wordOf(what));
        const std::string rows(wordOf(m_query.what));
        if (!homes.empty())
            fail(say("\"{}\" is not told of {}, but of {}.", token.text, rows, homes), token);
        if (m_query.what == What::Runs && m_at == 1)
            for (std::size_t i = 0; i < WhatCount; ++i)
                words.emplace_back(wordOf(static_cast<What>(i)));
        const bool isBehindName = m_at > 1 && !m_query.conditions.empty() &&
                                  m_tokens[m_at - 2].kind == Kind::Word &&
                                  m_query.conditions.back().value == m_tokens[m_at - 2].text &&
                                  !m_query.conditions.back().isBare;
        std::string text = say("\"{}\" means nothing in a query about {}.", token.text, rows);
        if (isBehindName)
            text += ' ' + say("A value of several words stands in quotes.");
        fail(text, token, nearestWords(token.text, words));
    }

    static bool isLabelOf(What what, std::string_view word) {
        return std::ranges::any_of(queryColumns(), [&](const QueryColumn& column) {
            return column.isOf(what) && hasWords(column) && codeOfWord(column, word);
        });
    }

    void parseBy() {
        do {
            const std::size_t at = m_at;
            const QueryColumn& column = takeColumn("by");
            if (column.kind == ColumnKind::Measure)
                fail(say("Nearly every row has a {} of its own.", column.name), m_tokens[at]);
            if (m_query.by.size() == MostGroupColumns)
                fail(say("Groups are made by three columns at most."), m_tokens[at]);
            if (std::ranges::count(m_query.by, &column) == 0)
                m_query.by.push_back(&column);
        } while (isNext(Kind::Comma) && ++m_at > 0);
    }

    void parseBest(const QueryToken& token) {
        if (m_query.best)
            fail(say("There is one \"best\" already."), token);
        const std::size_t at = m_at;
        const QueryColumn& column = takeColumn("best");
        if (column.kind != ColumnKind::Measure && column.kind != ColumnKind::Number)
            fail(say("\"{}\" is no number, of which one could be the best.", column.name),
                 m_tokens[at]);
        m_query.best = &column;
    }

    void parseSort(const QueryToken& token) {
        if (m_sortAt)
            fail(say("There is one \"sort\" already."), token);
        if (m_at == m_tokens.size())
            failAtEnd(columnNeeded("sort"));
        m_sortAt = m_at++;
        m_query.sort.emplace();
        if (isNext(Kind::Word)) {
            const std::string direction = folded(m_tokens[m_at].text);
            m_query.sort->isDown = direction == "down";
            m_at += direction == "down" || direction == "up" ? 1U : 0U;
        }
    }

    /// What can be sorted by depends on whether there are groups, which may be told later.
    void settleSort() {
        if (!m_sortAt)
            return;
        const QueryToken& token = m_tokens[*m_sortAt];
        const std::string word = nameOfColumn(folded(token.text));
        const auto* const figure = std::ranges::find(GroupFigures, word);
        const bool isFigure = !m_query.by.empty() && figure != std::end(GroupFigures);
        m_query.sort->column = isFigure ? nullptr : columnNamed(m_query.what, word);
        if (isFigure)
            m_query.sort->figure = *figure;
        else if (token.kind != Kind::Word || !m_query.sort->column)
            failUnknown(token, m_query.by.empty() ? columnNames() : groupNames());
        else if (!m_query.by.empty() && std::ranges::count(m_query.by, m_query.sort->column) == 0)
            fail(say("Groups are sorted by what makes them, or by count, best, mean or median."),
                 token, groupNames());
    }

    [[nodiscard]] std::vector<std::string> groupNames() const {
        std::vector<std::string> names(std::begin(GroupFigures), std::end(GroupFigures));
        for (const QueryColumn* const column : m_query.by)
            names.emplace_back(column->name);
        return names;
    }

    void parseFirst() {
        const QueryToken& value = takeValue("\"first\"");
        const auto count = typedWhole(value.text);
        if (!count || *count < 1)
            fail(say("\"{}\" is no number of rows.", value.text), value);
        m_query.first = static_cast<std::size_t>(*count);
    }

    std::string_view m_text;
    std::vector<QueryToken> m_tokens;
    std::size_t m_at = 0; ///< token that comes next
    std::optional<std::size_t> m_sortAt;
    Query m_query;
};

std::string conditionText(const Condition& condition) {
    if (condition.isBare)
        return condition.value;
    const QueryColumn* const column = condition.choices.front().column;
    std::string text(column ? column->name : TextWord);
    text += condition.comparison == Comparison::Equal
                ? " "
                : ComparisonSigns[static_cast<std::size_t>(condition.comparison)];
    if (!condition.isQuoted)
        return text + condition.value;
    text += '"';
    for (const char c : condition.value)
        text += c == '"' ? std::string(2, c) : std::string(1, c);
    return text + '"';
}

} // namespace

Query parsedQuery(std::string_view text) {
    return Parser(text).run();
}

std::string textOf(const Query& query) {
    std::string text(wordOf(query.what));
    for (const Condition& condition : query.conditions)
        text += ' ' + conditionText(condition);
    if (query.best)
        text += " best " + std::string(query.best->name);
    for (const QueryColumn* const column : query.by)
        text += (column == query.by.front() ? " by " : ", ") + std::string(column->name);
    if (query.sort)
        text += " sort " +
                std::string(query.sort->column ? query.sort->column->name : query.sort->figure) +
                (query.sort->isDown ? " down" : "");
    if (query.first)
        text += " first " + std::to_string(*query.first);
    return text;
}

std::vector<std::string> queryWords(What what) {
    std::vector<std::string> words(Clauses.begin(), Clauses.end());
    words.emplace_back(TextWord);
    for (const QueryColumn& column : queryColumns()) {
        if (!column.isOf(what))
            continue;
        words.emplace_back(column.name);
        if (hasWords(column))
            std::ranges::move(valueWords(column), std::back_inserter(words));
    }
    return words;
}

} // namespace kavela
