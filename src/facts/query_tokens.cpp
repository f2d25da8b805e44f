#include "facts/query_tokens.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "facts/query_text.h"

#include <algorithm>
#include <numeric>

namespace kavela {

namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view Comparisons = "=!<>";

bool isDigitAt(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// A comma between digits is a decimal sign.
bool isSeparator(std::string_view text, std::size_t at) {
    return text[at] == ',' && !(at > 0 && isDigitAt(text, at - 1) && isDigitAt(text, at + 1));
}

bool endsWord(std::string_view text, std::size_t at) {
    return Blanks.find(text[at]) != std::string_view::npos ||
           Comparisons.find(text[at]) != std::string_view::npos || text[at] == '"' ||
           isSeparator(text, at);
}

QueryToken quotedToken(std::string_view text, std::size_t begin) {
    QueryToken token{QueryToken::Kind::Quoted, {}, begin, 0};
    for (std::size_t at = begin + 1; at < text.size(); ++at) {
        if (text[at] != '"') {
            token.text += text[at];
        } else if (at + 1 < text.size() && text[at + 1] == '"') {
            token.text += text[at++];
        } else {
            token.length = at + 1 - begin;
            return token;
        }
    }
    throw QueryError(say("The quote is not closed."), begin, text.size() - begin);
}

QueryToken comparisonToken(std::string_view text, std::size_t begin) {
    const bool isLonger = begin + 1 < text.size() && text[begin + 1] == '=' && text[begin] != '=';
    const std::size_t length = isLonger ? 2 : 1;
    if (text[begin] == '!' && !isLonger)
        throw QueryError(say("\"!\" stands only in \"!=\"."), begin, 1, {"!="});
    return {QueryToken::Kind::Comparison, std::string(text.substr(begin, length)), begin, length};
}

QueryToken wordToken(std::string_view text, std::size_t begin) {
    std::size_t end = begin;
    while (end < text.size() && !endsWord(text, end))
        ++end;
    return {QueryToken::Kind::Word, std::string(text.substr(begin, end - begin)), begin,
            end - begin};
}

QueryToken tokenAt(std::string_view text, std::size_t begin) {
    if (text[begin] == '"')
        return quotedToken(text, begin);
    if (Comparisons.find(text[begin]) != std::string_view::npos)
        return comparisonToken(text, begin);
    if (isSeparator(text, begin))
        return {QueryToken::Kind::Comma, ",", begin, 1};
    return wordToken(text, begin);
}

/// How many letters have to be put in, left out or changed to make one word of the other.
std::size_t editsBetween(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t change = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({change, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::vector<QueryToken> queryTokens(std::string_view text) {
    std::vector<QueryToken> tokens;
    for (std::size_t at = 0; (at = text.find_first_not_of(Blanks, at)) != std::string_view::npos;) {
        tokens.push_back(tokenAt(text, at));
        at += tokens.back().length;
    }
    return tokens;
}

std::vector<std::string> nearestWords(std::string_view word,
                                      const std::vector<std::string>& words) {
    constexpr std::size_t MostWords = 3;
    constexpr std::size_t LongestWord = 64; // beyond it nobody mistyped a word of ours
    if (word.size() > LongestWord)
        return {};
    const std::string wanted = folded(word);
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& candidate : words) {
        const std::string small = folded(candidate);
        const bool begins = wanted.size() > 1 && small.starts_with(wanted);
        const std::size_t edits = begins ? 1 : editsBetween(wanted, small);
        if (edits <= std::max<std::size_t>(1, (wanted.size() + 1) / 3))
            near.emplace_back(edits, candidate);
    }
    std::ranges::stable_sort(near, {}, &std::pair<std::size_t, std::string>::first);
    std::vector<std::string> nearest;
    for (auto& [edits, candidate] : near)
        if (nearest.size() < MostWords && std::ranges::count(nearest, candidate) == 0)
            nearest.push_back(std::move(candidate));
    return nearest;
}

} // namespace kavela
