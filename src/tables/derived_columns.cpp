#include "tables/derived_columns.h"

#include "common/number_text.h"
#include "common/text.h"
#include "tables/table_error.h"
#include "tables/table_rules.h"
#include "tables/told_cells.h"

#include <algorithm>
#include <array>
#include <map>
#include <span>
#include <utility>

namespace kavela {

namespace {

constexpr std::array<std::string_view, 6> DerivationNames{"total",   "rank",       "gap",
                                                          "percent", "percentile", "difference"};

/// In the order of Derivation.
constexpr std::array DerivationRules{TableRule::Total,      TableRule::Rank,
                                     TableRule::Gap,        TableRule::Percent,
                                     TableRule::Percentile, TableRule::Difference};

std::string_view trimmedWords(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Where a text stands for the last time outside quotes.
std::size_t lastOutsideQuotes(std::string_view text, std::string_view wanted) {
    std::size_t last = std::string_view::npos;
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        isQuoted = isQuoted != (text[i] == '"');
        if (!isQuoted && text.substr(i).starts_with(wanted))
            last = i;
    }
    return last;
}

/// A name as it is typed: in quotes where it would be read otherwise.
std::string writtenName(const std::string& name) {
    const bool isPlain = name.find_first_of(",\"") == name.npos && name != "down" &&
                         name.find(" by ") == name.npos && !name.ends_with(" down") &&
                         trimmedWords(name) == name;
    if (isPlain)
        return name;
    std::string quoted = "\"";
    for (const char sign : name)
        quoted += sign == '"' ? std::string("\"\"") : std::string(1, sign);
    return quoted + '"';
}

std::string unquotedName(std::string_view text) {
    text = trimmedWords(text);
    if (text.size() < 2 || !text.starts_with('"') || !text.ends_with('"'))
        return std::string(text);
    std::string name;
    text = text.substr(1, text.size() - 2);
    for (std::size_t i = 0; i < text.size(); ++i) {
        name += text[i];
        i += text.substr(i, 2) == "\"\"" ? 1U : 0U;
    }
    return name;
}

/// A derived column of one table, cell by cell.
class DerivedCells {
public:
    DerivedCells(const ListTable& table, const DerivedColumn& derived)
        : m_table(table), m_derived(derived) {
        for (const std::string& name : derived.columns)
            m_columns.push_back(columnPlace(table, name));
        if (m_columns.empty())
            takeUsualColumns();
        checkColumns();
        if (!derived.by.empty())
            m_by = columnPlace(table, derived.by);
        for (std::size_t row = 0; row < table.rows(); ++row)
            if (const auto number = comparedNumber(row))
                m_numbers[groupOf(row)].push_back(*number);
        for (auto& [group, numbers] : m_numbers)
            std::ranges::sort(numbers);
    }

    [[nodiscard]] GridColumn column() const {
        GridColumn made;
        made.name = uniqueColumnName(m_table, std::string(derivationName(m_derived.what)));
        made.isDerived = true;
        made.kind = kind();
        made.holdsTimes = m_derived.what == Derivation::Total && first().holdsTimes;
        for (std::size_t row = 0; row < m_table.rows(); ++row)
            made.cells.push_back(cell(row, made.kind));
        return made;
    }

    [[nodiscard]] GridCell cell(std::size_t row, Why* why) const { return cell(row, kind(), why); }
    [[nodiscard]] const std::vector<std::size_t>& columns() const { return m_columns; }

private:
    [[nodiscard]] const GridColumn& first() const { return m_table.columns[m_columns.front()]; }

    void takeUsualColumns() {
        if (m_derived.what == Derivation::Difference)
            throw TableError(say("A difference needs two columns, as in difference:Run 2,Run 1."));
        if (m_derived.what != Derivation::Total) {
            m_columns = {resultColumn(m_table)};
            return;
        }
        const auto isTime = [](const GridColumn& column) {
            return isReckoned(column.kind) && column.holdsTimes &&
                   roleOf(column.name) != ColumnRole::Total;
        };
        const auto time = std::ranges::find_if(m_table.columns, isTime);
        if (time == m_table.columns.end())
            throw TableError(
                say("No column holds times; name those to add, as in total:Time,Pen."));
        m_columns = {static_cast<std::size_t>(time - m_table.columns.begin())};
        if (const auto penalty = columnOfRole(m_table, ColumnRole::Penalty))
            m_columns.push_back(*penalty);
    }

    void checkColumns() const {
        const std::size_t needed = m_derived.what == Derivation::Difference ? 2 : 1;
        const bool isRight =
            m_derived.what == Derivation::Total ? !m_columns.empty() : m_columns.size() == needed;
        if (!isRight)
            throw TableError(needed == 1 ? say("A {} is of one column, not of {}.",
                                               derivationName(m_derived.what), m_columns.size())
                                         : say("A {} is of two columns, not of {}.",
                                               derivationName(m_derived.what), m_columns.size()));
        for (const std::size_t column : m_columns)
            requireNumbers(m_table.columns[column]);
    }

    [[nodiscard]] bool isCompared() const {
        return m_derived.what != Derivation::Total && m_derived.what != Derivation::Difference;
    }

    [[nodiscard]] std::string groupOf(std::size_t row) const {
        return m_by ? m_table.columns[*m_by].cells[row].text : std::string();
    }

    /// Turned round where the highest is the best, so that the least always is.
    [[nodiscard]] std::optional<double> comparedNumber(std::size_t row) const {
        const auto number = isCompared() ? first().counted(row) : std::nullopt;
        if (!number)
            return std::nullopt;
        return m_derived.isHighestBest ? -*number : *number;
    }

    [[nodiscard]] ListColumnKind kind() const {
        if (m_derived.what == Derivation::Rank)
            return ListColumnKind::Whole;
        if (m_derived.what == Derivation::Percent || m_derived.what == Derivation::Percentile)
            return ListColumnKind::Decimal;
        ListColumnKind widest = ListColumnKind::Whole;
        for (const std::size_t column : m_columns)
            widest = std::max(widest, m_table.columns[column].kind);
        // A gap may be below 0, where the highest is the best, and so may a difference.
        return widest == ListColumnKind::Time && m_derived.what != Derivation::Total
                   ? ListColumnKind::Decimal
                   : widest;
    }

    [[nodiscard]] GridCell cell(std::size_t row, ListColumnKind kind, Why* why = nullptr) const {
        GridCell made;
        made.number = isCompared() ? comparison(row, why) : sum(row, why);
        if (made.number) {
            made.text = kind == ListColumnKind::Whole ? shortestText(*made.number)
                                                      : hundredthsText(*made.number);
            if (why)
                why->result(ruleOf(DerivationRules.at(static_cast<std::size_t>(m_derived.what))),
                            *made.number, made.text);
            return made;
        }
        for (const std::size_t column : m_columns) {
            const GridCell& source = m_table.columns[column].cells[row];
            if (source.isStatus) {
                made.isStatus = true;
                made.text = source.text;
                break;
            }
        }
        return made;
    }

    /// Of a total or a difference.
    [[nodiscard]] std::optional<double> sum(std::size_t row, Why* why) const {
        const double sign = m_derived.what == Derivation::Difference ? -1 : 1;
        double sum = 0;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const GridColumn& column = m_table.columns[m_columns[i]];
            const GridCell& source = column.cells[row];
            const bool isClean = m_derived.what == Derivation::Total && i > 0 &&
                                 !column.holdsTimes && column.kind == ListColumnKind::Whole &&
                                 isNoValue(source.text);
            const auto number = isClean ? std::optional(0.0) : column.counted(row);
            if (!number)
                return std::nullopt;
            sum += i == 0 ? *number : sign * *number;
            if (why)
                why->input(column.name, *number, placeOfCell(m_table, m_columns[i], row));
            if (why && isClean)
                why->note("An empty penalty adds nothing.");
        }
        return sum;
    }

    [[nodiscard]] std::optional<double> comparison(std::size_t row, Why* why) const {
        const auto number = comparedNumber(row);
        if (!number)
            return std::nullopt;
        if (why)
            tellCompared(row, *number, *why);
        const std::vector<double>& all = m_numbers.at(groupOf(row));
        const double best = all.front();
        switch (m_derived.what) {
        case Derivation::Rank:
            return static_cast<double>(1 + betterThan(all, *number));
        case Derivation::Gap:
            return *number - best;
        case Derivation::Percent:
            if (best == 0)
                return std::nullopt;
            return 100 * (*number / best - 1);
        default:
            if (all.size() < 2)
                return 0;
            return 100 * static_cast<double>(betterThan(all, *number)) /
                   static_cast<double>(all.size() - 1);
        }
    }

    /// How many of the ascending numbers are better; times that look alike are.
    [[nodiscard]] std::size_t betterThan(const std::vector<double>& all, double number) const {
        const auto seen = [&](double value) {
            return first().holdsTimes ? roundedToHundredths(value) : value;
        };
        const auto end = std::ranges::lower_bound(all, seen(number), {}, seen);
        return static_cast<std::size_t>(end - all.begin());
    }

    /// The row itself, then those that are better, or the best one where that alone counts.
    void tellCompared(std::size_t row, double number, Why& why) const {
        const std::vector<double>& all = m_numbers.at(groupOf(row));
        const bool isCounted =
            m_derived.what == Derivation::Rank || m_derived.what == Derivation::Percentile;
        const auto better = static_cast<std::ptrdiff_t>(betterThan(all, number));
        std::vector<std::size_t> rows;
        for (std::size_t other = 0; other < m_table.rows(); ++other) {
            const auto compared = comparedNumber(other);
            if (!compared || groupOf(other) != groupOf(row))
                continue;
            if (isCounted ? better > 0 && *compared <= *(all.begin() + better - 1)
                          : *compared == all.front() && rows.empty())
                rows.push_back(other);
        }
        std::ranges::stable_sort(rows, {}, [this](auto other) { return *comparedNumber(other); });
        tellCells(m_table, m_columns.front(), std::span(&row, 1), why);
        tellCells(m_table, m_columns.front(), rows, why);
        if (isCounted) {
            why.input("better", static_cast<double>(better));
            why.input("others", static_cast<double>(all.size() - 1));
        }
        if (m_by)
            why.note(say("Only rows with {} in {} are compared.", groupOf(row),
                         m_table.columns[*m_by].name));
        if (m_derived.isHighestBest)
            why.note("The highest is the best.");
    }

    const ListTable& m_table;
    const DerivedColumn& m_derived;
    std::vector<std::size_t> m_columns;
    std::optional<std::size_t> m_by;
    std::map<std::string, std::vector<double>> m_numbers; ///< ascending, by group
};

} // namespace

std::string_view derivationName(Derivation what) {
    return DerivationNames.at(static_cast<std::size_t>(what));
}

std::vector<std::string> commaParts(std::string_view text) {
    std::vector<std::string> parts;
    for (;;) {
        bool isQuoted = false;
        std::size_t end = 0;
        for (; end < text.size() && (isQuoted || text[end] != ','); ++end)
            isQuoted = isQuoted != (text[end] == '"');
        parts.push_back(unquotedName(text.substr(0, end)));
        if (end == text.size())
            return parts;
        text.remove_prefix(end + 1);
    }
}

DerivedColumn parsedDerivedColumn(std::string_view text) {
    const std::size_t colon = text.find(':');
    const std::string_view head = trimmedWords(text.substr(0, colon));
    std::string_view rest = colon == text.npos ? std::string_view() : text.substr(colon + 1);
    // "rank by Category" compares what ranks the rows.
    const std::size_t bareBy = head.find(" by ");
    const std::string_view name = trimmedWords(head.substr(0, bareBy));
    const auto found = std::ranges::find(DerivationNames, name);
    if (found == DerivationNames.end())
        throw TableError("\"" + std::string(name) +
                         "\" is none of total, rank, gap, percent, "
                         "percentile and difference.");
    DerivedColumn derived;
    derived.what = static_cast<Derivation>(found - DerivationNames.begin());
    if (bareBy != head.npos) {
        derived.by = unquotedName(text.substr(text.find(" by ") + 4));
        return derived;
    }
    if (const std::size_t by = lastOutsideQuotes(rest, " by "); by != rest.npos) {
        derived.by = unquotedName(rest.substr(by + 4));
        rest = rest.substr(0, by);
    }
    rest = trimmedWords(rest);
    constexpr std::string_view Down = "down";
    if (rest == Down || rest.ends_with(" down")) {
        derived.isHighestBest = true;
        rest.remove_suffix(Down.size());
    }
    if (!trimmedWords(rest).empty())
        derived.columns = commaParts(rest);
    return derived;
}

std::string textOf(const DerivedColumn& derived) {
    std::string text{derivationName(derived.what)};
    for (const std::string& name : derived.columns)
        text += (&name == derived.columns.data() ? ":" : ",") + writtenName(name);
    if (derived.isHighestBest)
        text += derived.columns.empty() ? ": down" : " down";
    if (!derived.by.empty())
        text += (derived.columns.empty() ? ": by " : " by ") + writtenName(derived.by);
    return text;
}

ListTable withDerived(ListTable table, const DerivedColumn& derived) {
    GridColumn column = DerivedCells(table, derived).column();
    table.columns.push_back(std::move(column));
    return table;
}

GridCell derivedCell(const ListTable& table, const DerivedColumn& derived, std::size_t row,
                     Why* why) {
    return DerivedCells(table, derived).cell(row, why);
}

std::vector<std::size_t> columnsBehind(const ListTable& table, const DerivedColumn& derived) {
    return DerivedCells(table, derived).columns();
}

} // namespace kavela
