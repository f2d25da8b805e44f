#include "facts/query_edit.h"

#include "common/text.h"
#include "facts/query_completion.h"
#include "facts/query_tokens.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace kavela {

namespace {

using Kind = QueryToken::Kind;

/// A label that stands alone and may be of several columns is of none in particular.
bool isAbout(const Condition& condition, std::string_view column) {
    return condition.choices.size() == 1 && condition.choices.front().column &&
           condition.choices.front().column->name == column;
}

bool isAsked(const Condition& condition, std::string_view column) {
    return isAbout(condition, column) && condition.comparison == Comparison::Equal;
}

bool isLimit(const Condition& condition, std::string_view column, Limit limit) {
    const bool isOfSide = limit == Limit::Least ? condition.comparison == Comparison::More ||
                                                      condition.comparison == Comparison::AtLeast
                                                : condition.comparison == Comparison::Less ||
                                                      condition.comparison == Comparison::AtMost;
    return isAbout(condition, column) && isOfSide;
}

std::string valueText(const Condition& condition) {
    return condition.isQuoted ? quotedValue(condition.value) : condition.value;
}

/// A query with nothing but these words behind the name of its rows. Faults are told at a place of
/// the words, of which `before` bytes stand in front of what was typed.
Query parsedPart(What what, const std::string& words, std::size_t before) {
    const std::string begin = std::string(wordOf(what)) + ' ';
    try {
        return parsedQuery(begin + words);
    } catch (const QueryError& error) {
        const std::size_t front = begin.size() + before;
        throw QueryError(error.what(), error.place() < front ? 0 : error.place() - front,
                         error.length(), error.nearest());
    }
}

std::optional<Query> parsedOrNone(const std::string& text) {
    try {
        return parsedQuery(text);
    } catch (const QueryError&) {
        return std::nullopt;
    }
}

/// A label alone says enough where no other column knows it: "left", not "direction left".
Condition shortest(What what, Condition condition) {
    const std::string_view column = condition.choices.front().column->name;
    const auto alone = parsedOrNone(std::string(wordOf(what)) + ' ' + condition.value);
    const bool isEnough = alone && alone->conditions.size() == 1 &&
                          alone->conditions.front().isBare &&
                          isAbout(alone->conditions.front(), column);
    return isEnough ? alone->conditions.front() : std::move(condition);
}

/// Puts conditions where the first of those stood that are replaced, else behind all.
template <class Is>
Query replaced(Query query, const Is& is, std::vector<Condition> by) {
    std::vector<Condition>& all = query.conditions;
    const auto first = std::ranges::find_if(all, is) - all.begin();
    std::erase_if(all, is);
    all.insert(all.begin() + std::min(first, std::ssize(all)), std::make_move_iterator(by.begin()),
               std::make_move_iterator(by.end()));
    return query;
}

/// What is sorted by may stand on what was changed.
Query withPossibleSort(Query query) {
    if (query.sort && !parsedOrNone(textOf(query)))
        query.sort.reset();
    return query;
}

/// The words behind a clause's own one; nothing but them may be meant.
Query clause(const Query& query, const std::string& word, std::string_view text) {
    Query part = parsedPart(query.what, word + ' ' + std::string(text), word.size() + 1);
    if (!part.conditions.empty())
        throw QueryError(say("Behind \"{}\" stands \"{}\", which is a condition.", word,
                             part.conditions.front().value),
                         0, text.size());
    return part;
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace

std::string askedText(const Query& query, std::string_view column) {
    std::string text;
    for (const Condition& condition : query.conditions)
        if (isAsked(condition, column))
            text += (text.empty() ? "" : " ") + valueText(condition);
    return text;
}

Query withAsked(const Query& query, std::string_view column, std::string_view text) {
    std::vector<Condition> conditions;
    for (const QueryToken& token : queryTokens(text)) {
        if (token.kind != Kind::Word && token.kind != Kind::Quoted)
            throw QueryError(say("Only values can stand here."), token.place, token.length);
        const std::string name = std::string(column) + ' ';
        const std::string value(text.substr(token.place, token.length));
        try {
            Query part = parsedPart(query.what, name + value, name.size());
            conditions.push_back(shortest(query.what, std::move(part.conditions.at(0))));
        } catch (const QueryError& error) {
            throw QueryError(error.what(), token.place, token.length, error.nearest());
        }
    }
    return replaced(
        query, [&](const Condition& is) { return isAsked(is, column); }, std::move(conditions));
}

std::string limitText(const Query& query, std::string_view column, Limit limit) {
    for (const Condition& condition : query.conditions)
        if (isLimit(condition, column, limit))
            return (condition.comparison == Comparison::Less   ? "<"
                    : condition.comparison == Comparison::More ? ">"
                                                               : "") +
                   valueText(condition);
    return {};
}

Query withLimit(const Query& query, std::string_view column, Limit limit, std::string_view text) {
    const auto isIt = [&](const Condition& is) { return isLimit(is, column, limit); };
    if (isBlank(text))
        return replaced(query, isIt, {});
    const char sign = limit == Limit::Least ? '>' : '<';
    const std::size_t first = text.find_first_not_of(' ');
    const bool isSigned = text[first] == '<' || text[first] == '>' || text[first] == '=';
    std::string words(column);
    words += isSigned ? "" : std::string(1, sign) + '=';
    Query part = parsedPart(query.what, words + std::string(text), words.size());
    if (part.conditions.size() != 1 || !isLimit(part.conditions.front(), column, limit))
        throw QueryError(say("One limit stands here, such as 4 or {}4.", sign), 0, text.size());
    return replaced(query, isIt, std::move(part.conditions));
}

std::string groupText(const Query& query) {
    std::string text;
    for (const QueryColumn* const column : query.by)
        text += (text.empty() ? "" : ", ") + std::string(column->name);
    return text;
}

Query withGroups(const Query& query, std::string_view text) {
    Query changed = query;
    changed.by = isBlank(text) ? decltype(changed.by)() : clause(query, "by", text).by;
    return withPossibleSort(std::move(changed));
}

Query withBest(const Query& query, std::string_view text) {
    Query changed = query;
    changed.best = isBlank(text) ? nullptr : clause(query, "best", text).best;
    return changed;
}

/// What can be sorted by depends on the groups.
Query withSort(const Query& query, std::string_view column, bool isDown) {
    Query changed = query;
    changed.sort.reset();
    if (isBlank(column))
        return changed;
    const std::string groups = query.by.empty() ? "" : "by " + groupText(query) + ' ';
    const Query part =
        parsedPart(query.what, groups + "sort " + std::string(column), groups.size() + 5);
    changed.sort = part.sort;
    changed.sort->isDown = isDown;
    return changed;
}

Query withFirst(const Query& query, std::string_view text) {
    Query changed = query;
    changed.first = isBlank(text) ? std::nullopt : clause(query, "first", text).first;
    return changed;
}

Query aboutRows(const Query& query, What what) {
    Query all;
    all.what = what;
    const auto asked = [&](auto change) {
        Query one;
        one.what = query.what;
        change(one);
        const std::string text = textOf(one).substr(wordOf(query.what).size());
        return parsedOrNone(std::string(wordOf(what)) + text);
    };
    for (const Condition& condition : query.conditions)
        if (auto part = asked([&](Query& one) { one.conditions = {condition}; }))
            all.conditions.push_back(part->conditions.front());
    if (const auto part = asked([&](Query& one) { one.by = query.by; }))
        all.by = part->by;
    if (const auto part = asked([&](Query& one) { one.best = query.best; }))
        all.best = part->best;
    all.first = query.first;
    if (query.sort) {
        const std::string_view name =
            query.sort->column ? query.sort->column->name : query.sort->figure;
        try {
            all = withSort(all, name, query.sort->isDown);
        } catch (const QueryError&) {
            // these rows are not sorted by it
        }
    }
    return all;
}

} // namespace kavela
