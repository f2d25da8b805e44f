#include "tables/list_reader.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <utility>

namespace kavela {

namespace {

/// Longer texts in quotes have lost their closing one.
constexpr std::size_t LongestQuotedField = 10'000;

constexpr std::string_view FieldEdge = " \t\r";

/// Without blanks around it, those included that web pages put into their cells.
std::string_view withoutListBlanks(std::string_view text) {
    constexpr std::array<std::string_view, 2> Hard{"\u00A0", "\u202F"};
    for (bool isCut = true; isCut;) {
        text.remove_prefix(std::min(text.find_first_not_of(FieldEdge), text.size()));
        text = text.substr(0, text.find_last_not_of(FieldEdge) + 1);
        isCut = false;
        for (const std::string_view blank : Hard) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                isCut = true;
            } else if (text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                isCut = true;
            }
        }
    }
    return text;
}

/// Goes through a text line by line; a quoted field may take it over several.
class ListWalk {
public:
    ListWalk(std::string_view text, std::string_view separator)
        : m_text(text), m_separator(separator) {}

    /// Fills the next line that has something on it; false when there is none.
    [[nodiscard]] bool next(GridLine& line) {
        while (m_at < m_text.size()) {
            line.fields.clear();
            line.number = m_line;
            if (m_separator == TwoBlanks)
                takeApartByBlanks(line);
            else
                while (takeField(line)) {
                }
            if (std::ranges::any_of(line.fields, [](const auto& text) { return !text.empty(); }))
                return true;
        }
        return false;
    }

private:
    [[nodiscard]] std::size_t lineEnd(std::size_t from) const {
        return std::min(m_text.find('\n', from), m_text.size());
    }

    void passLineEnd(std::size_t end) {
        m_at = end + 1;
        ++m_line;
    }

    void takeApartByBlanks(GridLine& line) {
        const std::size_t end = lineEnd(m_at);
        std::string_view rest = withoutListBlanks(m_text.substr(m_at, end - m_at));
        while (!rest.empty()) {
            const std::size_t gap = std::min(rest.find(TwoBlanks), rest.size());
            line.fields.emplace_back(withoutListBlanks(rest.substr(0, gap)));
            rest = withoutListBlanks(rest.substr(gap));
        }
        passLineEnd(end);
    }

    /// Where a field without quotes that begins at `from` ends.
    [[nodiscard]] std::size_t fieldEnd(std::size_t from) const {
        const std::size_t end = lineEnd(from);
        return m_separator.empty() ? end : std::min(m_text.find(m_separator, from), end);
    }

    /// Takes one field; false when it was the last one of its line.
    [[nodiscard]] bool takeField(GridLine& line) {
        std::size_t end = 0;
        if (auto quoted = quotedField(end)) {
            line.fields.push_back(std::move(*quoted));
        } else {
            end = fieldEnd(m_at);
            line.fields.emplace_back(withoutListBlanks(m_text.substr(m_at, end - m_at)));
        }
        const bool isLast = end >= m_text.size() || m_text[end] == '\n';
        if (isLast)
            passLineEnd(end);
        else
            m_at = end + m_separator.size();
        return !isLast;
    }

    /// The field in quotes that stands here and where it ends; nothing where none closes before a
    /// separator or a line end.
    [[nodiscard]] std::optional<std::string> quotedField(std::size_t& end) {
        const std::string_view blanks = m_separator == "\t" ? " " : " \t";
        const std::size_t open = m_text.find_first_not_of(blanks, m_at);
        if (open == std::string_view::npos || m_text[open] != '"')
            return std::nullopt;
        std::string field;
        std::int64_t lines = 0;
        const std::size_t last = std::min(m_text.size(), open + LongestQuotedField);
        std::size_t at = open + 1;
        for (; at < last; ++at) {
            const bool isDoubled = m_text.substr(at, 2) == "\"\"";
            if (m_text[at] == '"' && !isDoubled)
                break;
            at += isDoubled ? 1U : 0U;
            lines += m_text[at] == '\n' ? 1 : 0;
            if (m_text[at] != '\r')
                field += m_text[at] == '\n' ? ' ' : m_text[at];
        }
        if (at >= last)
            return std::nullopt;
        end = fieldEnd(at + 1);
        if (!withoutListBlanks(m_text.substr(at + 1, end - at - 1)).empty())
            return std::nullopt;
        m_line += lines;
        return std::string(withoutListBlanks(field));
    }

    std::string_view m_text;
    std::string_view m_separator;
    std::size_t m_at = 0;
    std::int64_t m_line = 1;
};

/// How many lines have the most frequent count of fields, one alone left out.
std::size_t linesOfOneCount(std::string_view text, std::string_view separator) {
    std::map<std::size_t, std::size_t> lines;
    ListWalk walk(text, separator);
    for (GridLine line; walk.next(line);)
        if (line.fields.size() > 1)
            ++lines[line.fields.size()];
    std::size_t most = 0;
    for (const auto& [fields, count] : lines)
        most = std::max(most, count);
    return most;
}

bool isListDigit(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

bool areCommasDecimal(std::string_view text) {
    for (std::size_t at = text.find(','); at != text.npos; at = text.find(',', at + 1))
        if (at == 0 || !isListDigit(text, at - 1) || !isListDigit(text, at + 1))
            return false;
    return true;
}

} // namespace

std::string listSeparatorOf(std::string_view text) {
    constexpr std::array<std::string_view, 5> Separators{"\t", ";", "|", ",", TwoBlanks};
    std::string_view best;
    std::size_t most = 0;
    for (const std::string_view separator : Separators) {
        const std::size_t lines = linesOfOneCount(text, separator);
        const bool winsDraw = lines == most && lines > 0 && best == "," && areCommasDecimal(text);
        if (lines > most || winsDraw) {
            best = separator;
            most = lines;
        }
    }
    return std::string(best);
}

ListGrid readList(std::string_view text, std::string_view separator) {
    ListGrid grid;
    grid.separator = separator;
    ListWalk walk(text, separator);
    std::size_t cells = 0;
    for (GridLine line; walk.next(line);) {
        cells += line.fields.size();
        if (grid.lines.size() >= MostGridLines || cells > MostGridCells) {
            grid.refused.push_back({line.number, 0, line.fields.front(),
                                    "the list is too long: this line and all below were left out"});
            break;
        }
        if (line.fields.size() > MostGridColumns) {
            grid.refused.push_back({line.number, static_cast<std::int64_t>(MostGridColumns) + 1,
                                    line.fields[MostGridColumns],
                                    "the line has too many fields: this and the following were "
                                    "left out"});
            line.fields.resize(MostGridColumns);
        }
        grid.lines.push_back(line);
    }
    return grid;
}

ListGrid readList(std::string_view text) {
    return readList(text, listSeparatorOf(text));
}

} // namespace kavela
