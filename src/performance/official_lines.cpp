#include "performance/official_lines.h"

#include "common/text.h"
#include "performance/table_join.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/run_totals.h"
#include "tables/table_error.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace kavela {

namespace {

/// Takes a word such as DNF, in parentheses or not, out of a text.
std::string takeStatus(std::string& text) {
    constexpr std::string_view Apart = " ()\t,;";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t begin = text.find_first_not_of(Apart, at);
        if (begin == text.npos)
            break;
        const std::size_t end = std::min(text.find_first_of(Apart, begin), text.size());
        const std::string word = text.substr(begin, end - begin);
        if (isStatusWord(word)) {
            text.erase(begin, end - begin);
            std::erase_if(text, [](char sign) { return sign == '(' || sign == ')'; });
            const std::size_t last = text.find_last_not_of(' ');
            text.erase(last == text.npos ? 0 : last + 1);
            return inCapitals(word);
        }
        at = end;
    }
    return {};
}

/// Finds what the columns of a table tell of a line.
class OfficialColumns {
public:
    explicit OfficialColumns(const ListTable& table)
        : m_table(table),
          m_bib(columnOfRole(table, ColumnRole::Bib)),
          m_category(columnOfRole(table, ColumnRole::Category)),
          m_time(columnOfRole(table, ColumnRole::Time)),
          m_penalty(columnOfRole(table, ColumnRole::Penalty)),
          m_total(columnOfRole(table, ColumnRole::Total)),
          m_status(columnOfRole(table, ColumnRole::Status)) {
        if (!m_time && !(m_total && m_penalty))
            throw TableError(
                say("The list needs a column with the title Time, or Total and Penalty."));
    }

    [[nodiscard]] OfficialLine line(std::size_t row) const {
        OfficialLine made;
        made.line = m_table.lines[row];
        made.bib = whole(m_bib, row);
        made.penalty = whole(m_penalty, row);
        made.category = m_category ? cell(*m_category, row).text : std::string();
        const auto crew = crewOfRow(m_table, row);
        if (!crew)
            throw TableError(say("The list needs a column with the title Name, Athlete or Crew."));
        made.crew = *crew;
        made.status = status(row, made.crew);
        if (made.status.empty())
            made.time = time(row, made.penalty);
        return made;
    }

private:
    [[nodiscard]] const GridCell& cell(std::size_t column, std::size_t row) const {
        return m_table.columns[column].cells[row];
    }

    [[nodiscard]] std::int64_t whole(std::optional<std::size_t> column, std::size_t row) const {
        constexpr double Most = 1e6;
        const auto number = column ? m_table.columns[*column].counted(row) : std::nullopt;
        return number && std::abs(*number) < Most ? std::llround(*number) : 0;
    }

    [[nodiscard]] std::string status(std::size_t row, std::string& crew) const {
        for (const auto& column : {m_status, m_time, m_total})
            if (column && isStatusWord(cell(*column, row).text))
                return inCapitals(cell(*column, row).text);
        return takeStatus(crew);
    }

    [[nodiscard]] std::optional<double> time(std::size_t row, std::int64_t penalty) const {
        const auto number =
            m_time ? m_table.columns[*m_time].counted(row) : m_table.columns[*m_total].counted(row);
        if (!number)
            return std::nullopt;
        const double seconds = m_time ? *number : *number - static_cast<double>(penalty);
        return isTakenTime(seconds) ? std::optional(seconds) : std::nullopt;
    }

    const ListTable& m_table;
    std::optional<std::size_t> m_bib;
    std::optional<std::size_t> m_category;
    std::optional<std::size_t> m_time;
    std::optional<std::size_t> m_penalty;
    std::optional<std::size_t> m_total;
    std::optional<std::size_t> m_status;
};

} // namespace

std::vector<OfficialLine> officialLines(const std::vector<allresultsdata030>& lines) {
    std::vector<OfficialLine> made;
    for (const allresultsdata030& line : lines) {
        OfficialLine& official = made.emplace_back();
        official.line = static_cast<std::int64_t>(made.size());
        official.bib = line.bib;
        official.crew = line.name;
        official.penalty = line.pen;
        official.status = takeStatus(official.crew);
        std::string nationality = line.nationality;
        if (official.status.empty())
            official.status = takeStatus(nationality);
        if (official.status.empty() && isTakenTime(line.time))
            official.time = line.time;
    }
    return made;
}

std::vector<OfficialLine> officialLines(const ListTable& table) {
    const OfficialColumns columns(table);
    std::vector<OfficialLine> made;
    for (std::size_t row = 0; row < table.rows(); ++row)
        made.push_back(columns.line(row));
    return made;
}

} // namespace kavela
