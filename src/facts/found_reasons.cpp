#include "facts/found_reasons.h"

#include "common/cell_id.h"
#include "common/text.h"
#include "facts/found_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace kavela {

namespace {

constexpr std::size_t MostMembersTold = 50; ///< nobody reads on

/// In the order in which groups have their figures.
constexpr std::array FoundFigureRules{
    Rule{"found.count", "The rows of the group.", "number of rows", ""},
    Rule{"found.best", "The least value of the group's rows.", "min values", ""},
    Rule{"found.mean", "The mean of the group's rows.", "Σ values / rows with a value", ""},
    Rule{"found.median", "The middle of the group's rows.", "median values", ""},
};

/// The rule of every column, from what the column says of itself.
class ColumnRules {
public:
    ColumnRules() {
        const auto columns = queryColumns();
        m_texts.reserve(columns.size());
        m_rules.reserve(columns.size());
        for (const QueryColumn& column : columns) {
            Texts& texts = m_texts.emplace_back();
            texts.id = "found." + std::string(column.name) + '.' + std::to_string(m_texts.size());
            texts.sentence = say("{}: {}.", column.name, translated(column.meaning));
            if (const char first = texts.sentence.front(); first >= 'a' && first <= 'z')
                texts.sentence.front() = static_cast<char>(first - 'a' + 'A');
            m_rules.push_back({texts.id, texts.sentence, column.name, ""});
        }
    }

    [[nodiscard]] const Rule& of(const QueryColumn& column) const {
        return m_rules[static_cast<std::size_t>(&column - queryColumns().data())];
    }

private:
    struct Texts {
        std::string id;
        std::string sentence;
    };

    std::vector<Texts> m_texts; ///< what the rules look at: never moved once they do
    std::vector<Rule> m_rules;
};

const Rule& ruleOfColumn(const QueryColumn& column) {
    static const ColumnRules rules;
    return rules.of(column);
}

std::string crewOfRow(const QueryAnswer& answer, std::size_t row) {
    const FactStore& facts = answer.facts();
    return std::string(facts.text(facts.runs()[answer.place(row).run].crew));
}

std::size_t columnOf(const QueryAnswer& answer, const QueryColumn* column) {
    const auto found = std::ranges::find(answer.columns(), column, &FoundColumn::column);
    return static_cast<std::size_t>(found - answer.columns().begin());
}

/// What a group is reckoned from: one of each row where rows are counted.
void tellMembers(const QueryAnswer& groups, std::size_t group, const QueryColumn* column,
                 Why& why) {
    const QueryAnswer members = rowsOfGroup(groups, group);
    const std::size_t at = columnOf(members, column);
    std::size_t told = 0;
    std::int64_t left = 0;
    std::int64_t without = 0;
    for (std::size_t row = 0; row < members.size(); ++row) {
        const bool hasColumn = column && at < members.columns().size();
        const double value = hasColumn ? members.value(row, at).number : 1;
        if (std::isnan(value))
            ++without;
        else if (told == MostMembersTold)
            ++left;
        else {
            ++told;
            why.input(crewOfRow(members, row), value, shownPlace(members, row));
        }
    }
    if (left > 0)
        why.note(sayCount(left, "{} more row is not told.", "{} more rows are not told."));
    if (without > 0)
        why.note(sayCount(without, "{} row has no such value.", "{} rows have no such value."));
}

/// Which of the figures of a group a column is.
const Rule* figureRule(const FoundColumn& column) {
    const auto found = std::ranges::find_if(FoundFigureRules, [&](const Rule& rule) {
        return rule.id.substr(rule.id.find('.') + 1) == column.name;
    });
    return found == FoundFigureRules.end() ? nullptr : &*found;
}

} // namespace

std::optional<Reason> explainFound(const QueryAnswer& answer, std::size_t row, std::size_t column) {
    if (row >= answer.size() || column >= answer.columns().size())
        return std::nullopt;
    const FoundColumn& found = answer.columns()[column];
    const double value = answer.value(row, column).number;
    if (!isNumber(found) || std::isnan(value))
        return std::nullopt;
    Why why;
    if (found.isFigure) {
        const Rule* const rule = figureRule(found);
        if (!rule)
            return std::nullopt;
        tellMembers(answer, row, found.column, why);
        why.result(*rule, value, answer.text(row, column));
    } else {
        why.input(found.name, value, shownPlace(answer, row));
        why.result(ruleOfColumn(*found.column), value, answer.text(row, column));
    }
    return why.reason();
}

std::optional<Reason> explainFound(const QueryAnswer& answer, std::string_view id) {
    const auto cell = parsedCellId(id);
    if (!cell)
        return std::nullopt;
    const auto found = std::ranges::find(answer.columns(), cell->column, &FoundColumn::name);
    return explainFound(answer, cell->row,
                        static_cast<std::size_t>(found - answer.columns().begin()));
}

} // namespace kavela
