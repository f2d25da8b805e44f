#include "facts/query_completion.h"

#include "common/folded_text.h"
#include "facts/query.h"
#include "facts/query_tokens.h"

#include <algorithm>
#include <array>
#include <set>

namespace kavela {

namespace {

using Kind = QueryToken::Kind;

/// What is expected behind some words of a query.
enum class Expects {
    Beginning,
    Condition,
    Value,
    AnyText,
    GroupColumn,
    BestColumn,
    SortColumn,
    SortEnd,
    Count
};

/// Goes through the words in front of the cursor, whatever is wrong with them.
class Reading {
public:
    void take(const QueryToken& token) {
        const bool isFirst = m_expects == Expects::Beginning;
        if (token.kind == Kind::Comparison)
            return; // its value comes still
        if (token.kind == Kind::Comma) {
            m_expects = m_isBehindGroup ? Expects::GroupColumn : Expects::Condition;
            return;
        }
        const std::string word = folded(token.text);
        m_isBehindGroup = m_expects == Expects::GroupColumn;
        if (isFirst && token.kind == Kind::Word && whatOf(word)) {
            m_what = *whatOf(word);
            m_expects = Expects::Condition;
        } else if (m_expects == Expects::SortColumn) {
            m_expects = Expects::SortEnd;
        } else if (isFirst || m_expects == Expects::Condition || m_expects == Expects::SortEnd) {
            begin(word);
        } else {
            m_expects = Expects::Condition;
        }
    }

    [[nodiscard]] What what() const { return m_what; }
    [[nodiscard]] Expects expects() const { return m_expects; }
    [[nodiscard]] const QueryColumn& column() const { return *m_column; }

private:
    void begin(const std::string& word) {
        m_expects = word == "by"      ? Expects::GroupColumn
                    : word == "best"  ? Expects::BestColumn
                    : word == "sort"  ? Expects::SortColumn
                    : word == "first" ? Expects::Count
                    : word == "text"  ? Expects::AnyText
                                      : Expects::Condition;
        m_column = columnNamed(m_what, word == "category" ? "cat"
                                       : word == "crew"   ? "athlete"
                                                          : word);
        if (m_expects == Expects::Condition && m_column)
            m_expects = Expects::Value;
    }

    What m_what = What::Runs;
    Expects m_expects = Expects::Beginning;
    const QueryColumn* m_column = nullptr;
    bool m_isBehindGroup = false;
};

/// Where a quote begins that is still open; the end of the text where none is.
std::size_t openQuote(std::string_view text) {
    std::size_t begin = text.size();
    for (std::size_t at = 0; at < text.size(); ++at)
        if (text[at] == '"')
            begin = begin == text.size() ? at : text.size();
    return begin;
}

std::vector<QueryToken> tokensOf(std::string_view text) {
    try {
        return queryTokens(text);
    } catch (const QueryError& error) { // what stands in front of the fault
        return error.place() < text.size() ? tokensOf(text.substr(0, error.place()))
                                           : std::vector<QueryToken>();
    }
}

std::vector<std::string> columnsOf(What what, const std::function<bool(const QueryColumn&)>& fits) {
    std::vector<std::string> names;
    for (const QueryColumn& column : queryColumns())
        if (column.isOf(what) && fits(column))
            names.emplace_back(column.name);
    return names;
}

std::vector<std::string> offered(const Reading& reading, const ValuesOf& valuesOf) {
    const What what = reading.what();
    std::vector<std::string> words;
    switch (reading.expects()) {
    case Expects::Beginning:
        for (std::size_t i = 0; i < WhatCount; ++i)
            words.emplace_back(wordOf(static_cast<What>(i)));
        std::ranges::move(queryWords(what), std::back_inserter(words));
        return words;
    case Expects::Condition:
        return queryWords(what);
    case Expects::Value:
        for (const std::string& value : valuesOf(what, reading.column()))
            words.push_back(quotedValue(value));
        return words;
    case Expects::GroupColumn:
        return columnsOf(
            what, [](const QueryColumn& column) { return column.kind != ColumnKind::Measure; });
    case Expects::BestColumn:
        return columnsOf(what, [](const QueryColumn& column) {
            return column.kind == ColumnKind::Measure || column.kind == ColumnKind::Number;
        });
    case Expects::SortColumn:
        words = columnsOf(what, [](const QueryColumn&) { return true; });
        words.insert(words.end(), std::begin(GroupFigures), std::end(GroupFigures));
        return words;
    case Expects::SortEnd:
        words = {"down", "up"};
        std::ranges::move(queryWords(what), std::back_inserter(words));
        return words;
    case Expects::AnyText:
    case Expects::Count:
        break;
    }
    return words;
}

/// 0 where the word begins so, 1 where a later word in it does, 2 where none does.
int rankOf(std::string_view word, const std::string& begun) {
    const std::string text = folded(word.starts_with('"') ? word.substr(1) : word);
    if (text.starts_with(begun))
        return 0;
    for (std::size_t at = text.find(begun); at != std::string::npos; at = text.find(begun, at + 1))
        if (at > 0 && (text[at - 1] == ' ' || text[at - 1] == '-'))
            return 1;
    return 2;
}

/// Each once, those that begin as the text first.
std::vector<std::string> fitting(const std::vector<std::string>& words, const std::string& begun) {
    std::array<std::vector<std::string>, 2> found;
    std::set<std::string_view> met;
    for (const std::string& word : words)
        if (const int rank = rankOf(word, begun); rank < 2 && met.insert(word).second)
            found[static_cast<std::size_t>(rank)].push_back(word);
    std::ranges::move(found[1], std::back_inserter(found[0]));
    if (found[0].size() > MostCompletions)
        found[0].resize(MostCompletions);
    return std::move(found[0]);
}

} // namespace

Completion completionAt(std::string_view text, std::size_t cursor, const ValuesOf& valuesOf) {
    const std::string_view before = text.substr(0, cursor);
    Completion completion;
    completion.place = openQuote(before);
    std::vector<QueryToken> tokens = tokensOf(before.substr(0, completion.place));
    const bool isInWord = completion.place == before.size() && !tokens.empty() &&
                          tokens.back().kind == Kind::Word &&
                          tokens.back().place + tokens.back().length == before.size();
    if (isInWord) {
        completion.place = tokens.back().place;
        tokens.pop_back();
    }
    completion.length = before.size() - completion.place;
    Reading reading;
    for (const QueryToken& token : tokens)
        reading.take(token);
    std::string_view begun = before.substr(completion.place);
    if (begun.starts_with('"'))
        begun.remove_prefix(1);
    completion.words = fitting(offered(reading, valuesOf), folded(begun));
    return completion;
}

std::vector<std::string> valuesIn(const FactStore& facts, What what, const QueryColumn& column) {
    std::vector<std::string> values;
    if (column.kind == ColumnKind::Measure)
        return values;
    if (column.kind == ColumnKind::Way)
        return {"up", "down"};
    if (column.kind == ColumnKind::Label) {
        for (const Label& label : labelsOf(*column.labels))
            values.emplace_back(label.id);
        return values;
    }
    // What every row of a run shares is told by the runs alone, which are fewer.
    Query query;
    query.what = column.level == ColumnLevel::Row ? what : What::Runs;
    query.by = {&column};
    const QueryAnswer groups = answer(facts, query);
    for (std::size_t row = 0; row < groups.size(); ++row) {
        std::string value = groups.text(row, 0);
        std::replace(value.begin(), value.end(), '\n', ' ');
        if (value.find_first_not_of(' ') != std::string::npos)
            values.push_back(std::move(value));
    }
    return values;
}

std::string quotedValue(std::string_view value) {
    constexpr std::string_view Plain = " \t\r\n=!<>\",";
    constexpr std::array<std::string_view, 4> Clauses{"by", "best", "sort", "first"};
    const bool isPlain = !value.empty() && value.find_first_of(Plain) == std::string_view::npos &&
                         std::ranges::count(Clauses, folded(value)) == 0;
    if (isPlain)
        return std::string(value);
    std::string text = "\"";
    for (const char c : value)
        text += c == '"' ? std::string(2, c) : std::string(1, c);
    return text + '"';
}

} // namespace kavela
