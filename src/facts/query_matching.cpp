#include "facts/query_matching.h"

#include "common/folded_text.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

bool isLetter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

/// The words of a folded text: what stands between marks and blanks.
std::vector<std::string> wordsIn(std::string_view folded) {
    std::vector<std::string> words;
    for (auto at = folded.begin(); at != folded.end();) {
        at = std::find_if(at, folded.end(), isLetter);
        const auto end = std::find_if_not(at, folded.end(), isLetter);
        if (at != end)
            words.emplace_back(at, end);
        at = end;
    }
    return words;
}

std::string keyOf(const QueryColumn& column, std::string_view text) {
    if (column.name == "athlete")
        return crewKey(text);
    if (column.name == "cat")
        return categoryKey(text);
    return {};
}

/// Another way in which lists write it: the team's word for a phase.
std::string otherName(const QueryColumn& column, std::string_view text) {
    return column.name == "phase" ? teamPhase(text) : std::string();
}

bool isCompared(double value, const Choice& choice, Comparison comparison) {
    constexpr double HalfHundredth = 0.005;
    if (std::isnan(value))
        return false;
    if (choice.column->kind == ColumnKind::Day) {
        const bool isBefore = value < choice.from;
        const bool isBehind = value >= choice.to;
        switch (comparison) {
        case Comparison::Equal:
            return !isBefore && !isBehind;
        case Comparison::NotEqual:
            return isBefore || isBehind;
        case Comparison::Less:
            return isBefore;
        case Comparison::AtMost:
            return !isBehind;
        case Comparison::More:
            return isBehind;
        case Comparison::AtLeast:
            return !isBefore;
        }
    }
    const double near = choice.column->kind == ColumnKind::Measure ? HalfHundredth : 0;
    const bool isEqual = std::abs(value - choice.from) <= near;
    switch (comparison) {
    case Comparison::Equal:
        return isEqual;
    case Comparison::NotEqual:
        return !isEqual;
    case Comparison::Less:
        return value < choice.from;
    case Comparison::AtMost:
        return value <= choice.from;
    case Comparison::More:
        return value > choice.from;
    case Comparison::AtLeast:
        return value >= choice.from;
    }
    return false;
}

} // namespace

QueryMatcher::QueryMatcher(const FactStore& facts, const Query& query)
    : m_facts(facts), m_what(query.what) {
    for (const Condition& condition : query.conditions) {
        Test test;
        test.condition = &condition;
        const QueryColumn* const column = condition.choices.front().column;
        // What is written about a run stands for all its rows but those that have words of their
        // own.
        const bool hasOwnTexts = m_what == What::Losses || m_what == What::Tags;
        test.level = column ? column->level : hasOwnTexts ? ColumnLevel::Row : ColumnLevel::Run;
        if (!column || column->isText()) {
            test.words = wordsIn(folded(condition.value));
            test.key = column ? keyOf(*column, condition.value) : std::string();
            test.known.assign(m_facts.textCount(), -1);
        }
        m_tests.push_back(std::move(test));
    }
}

bool QueryMatcher::matches(const RowCursor& row, ColumnLevel level) {
    return std::ranges::all_of(m_tests,
                               [&](Test& test) { return test.level != level || isMet(row, test); });
}

bool QueryMatcher::isMet(const RowCursor& row, Test& test) {
    const Condition& condition = *test.condition;
    const bool isWanted = condition.comparison == Comparison::Equal;
    const QueryColumn* const column = condition.choices.front().column;
    if (!column)
        return isAnyTextMet(row, test) == isWanted;
    if (column->isText())
        return isTextMet(column->text(row), test) == isWanted;
    return std::ranges::any_of(condition.choices, [&](const Choice& choice) {
        return isCompared(choice.column->number(row), choice, condition.comparison);
    });
}

bool QueryMatcher::isTextMet(TextId text, Test& test) {
    signed char& known = test.known[text];
    if (known < 0)
        known = isMetBy(m_facts.text(text), test) ? 1 : 0;
    return known != 0;
}

bool QueryMatcher::isMetBy(std::string_view text, const Test& test) const {
    const QueryColumn* const column = test.condition->choices.front().column;
    if (!test.key.empty() && keyOf(*column, text) == test.key)
        return true;
    std::string all(text);
    if (column)
        all += ' ' + otherName(*column, text);
    const std::vector<std::string> words = wordsIn(folded(all));
    const bool isWhole = test.condition->isQuoted;
    return !test.words.empty() && std::ranges::all_of(test.words, [&](const std::string& wanted) {
        return std::ranges::any_of(words, [&](const std::string& word) {
            return isWhole ? word == wanted : word.starts_with(wanted);
        });
    });
}

bool QueryMatcher::isAnyTextMet(const RowCursor& row, Test& test) {
    const FileRow& file = *row.file;
    for (const TextId text :
         {file.title, file.place, file.session, file.event, file.category, file.water, file.tags,
          file.comments, row.run->crew, row.run->category, row.run->phase, row.run->hand})
        if (isTextMet(text, test))
            return true;
    const auto isFilmMet = [&](TextId film) { return isTextMet(film, test); };
    if (std::ranges::any_of(m_facts.filmsOf(*row.run), isFilmMet))
        return true;
    if (m_what == What::Losses)
        return isTextMet(row.loss->versus, test) || isTextMet(row.loss->reasons, test) ||
               isTextMet(row.loss->comments, test);
    if (m_what == What::Tags)
        return isTextMet(row.tag->tag, test) || isTextMet(row.tag->comments, test);
    return areNotesMet(*row.run, test);
}

bool QueryMatcher::areNotesMet(const RunRow& run, Test& test) {
    for (const LossRow& loss : m_facts.lossesOf(run))
        if (isTextMet(loss.versus, test) || isTextMet(loss.reasons, test) ||
            isTextMet(loss.comments, test))
            return true;
    for (const WayRow& way : m_facts.waysOf(run)) {
        if (isTextMet(way.title, test) || isTextMet(way.comments, test))
            return true;
        for (const TextId option : m_facts.optionsOf(way))
            if (isTextMet(option, test))
                return true;
    }
    return std::ranges::any_of(m_facts.tagsOf(run), [&](const TagRow& tag) {
        return isTextMet(tag.tag, test) || isTextMet(tag.comments, test);
    });
}

} // namespace kavela
