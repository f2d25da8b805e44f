#include "tables/table_reading.h"

#include "common/text.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace kavela {

namespace {

std::size_t filledFields(const GridLine& line) {
    return static_cast<std::size_t>(
        std::ranges::count_if(line.fields, [](const auto& text) { return !text.empty(); }));
}

/// The count that most lines have; of several the largest.
template <class CountOf>
std::size_t usualCount(const std::vector<GridLine>& lines, CountOf countOf) {
    std::map<std::size_t, std::size_t> counts;
    for (const GridLine& line : lines)
        ++counts[countOf(line)];
    std::size_t usual = 0;
    std::size_t most = 0;
    for (const auto& [count, frequency] : counts)
        if (frequency >= most) {
            usual = count;
            most = frequency;
        }
    return usual;
}

std::string joinedFields(const GridLine& line) {
    std::string text;
    for (const std::string& field : line.fields)
        if (!field.empty())
            text += (text.empty() ? "" : " ") + field;
    return text;
}

bool isYear(const CellValue& value) {
    return value.number && *value.number >= 1900 && *value.number <= 2100;
}

/// Makes a table of a list.
class TableMaker {
public:
    TableMaker(const ListGrid& grid, const TableReading& reading)
        : m_grid(grid), m_reading(reading) {}

    [[nodiscard]] ListTable make() {
        m_table.separator = m_grid.separator;
        m_table.notes = m_grid.notes;
        m_table.refused = m_grid.refused;
        passWhatStandsAbove();
        findWidth();
        if (m_reading.hasTitles.value_or(looksLikeTitles()))
            takeTitles();
        takeRows();
        addColumns();
        std::ranges::stable_sort(m_table.refused, [](const RefusedCell& a, const RefusedCell& b) {
            return std::tie(a.line, a.column) < std::tie(b.line, b.column);
        });
        return std::move(m_table);
    }

private:
    [[nodiscard]] const GridLine& lineAt(std::size_t index) const { return m_grid.lines[index]; }

    void passWhatStandsAbove() {
        const std::size_t usual = usualCount(m_grid.lines, filledFields);
        // Titles of columns that are mostly empty are often more, of last ones sometimes less.
        const std::size_t enough = std::max<std::size_t>(1, (usual * 3 + 4) / 5);
        while (m_first < m_grid.lines.size() && filledFields(lineAt(m_first)) < enough) {
            refuseLine(lineAt(m_first), say("stands above the titles"));
            ++m_first;
        }
    }

    void refuseLine(const GridLine& line, std::string reason) {
        m_table.refused.push_back({line.number, 0, joinedFields(line), std::move(reason)});
    }

    void findWidth() {
        if (m_first >= m_grid.lines.size())
            return;
        const auto size = [](const GridLine& line) { return line.fields.size(); };
        m_width = std::max(lineAt(m_first).fields.size(), usualCount(m_grid.lines, size));
        if (m_grid.isText())
            return;
        // Sheets end a line at its last filled cell, so no count is usual.
        for (std::size_t i = m_first; i < m_grid.lines.size(); ++i)
            m_width = std::max(m_width, lineAt(i).fields.size());
    }

    /// The texts of a column below a line.
    [[nodiscard]] std::vector<std::string> textsBelow(std::size_t from, std::size_t column) const {
        std::vector<std::string> texts;
        for (std::size_t i = from; i < m_grid.lines.size(); ++i)
            if (column < lineAt(i).fields.size())
                texts.push_back(lineAt(i).fields[column]);
        return texts;
    }

    /// A first line that is a row like the others has a number, no year, wherever all below have.
    [[nodiscard]] bool looksLikeTitles() const {
        if (m_first >= m_grid.lines.size())
            return false;
        if (m_first + 1 == m_grid.lines.size())
            return true;
        bool hasNumber = false;
        for (std::size_t column = 0; column < lineAt(m_first).fields.size(); ++column) {
            const std::string& text = lineAt(m_first).fields[column];
            const ListColumnKind kind = guessedKind(textsBelow(m_first + 1, column));
            if (kind == ListColumnKind::Text || isNoValue(text))
                continue;
            const CellValue value = valueAs(kind, text);
            if (isYear(value) || (!value.number && !value.isStatus))
                return true;
            hasNumber = true;
        }
        return !hasNumber;
    }

    void takeTitles() {
        if (m_first < m_grid.lines.size())
            m_titles = lineAt(m_first++).fields;
    }

    void takeRows() {
        for (std::size_t i = m_first; i < m_grid.lines.size(); ++i) {
            const GridLine& line = lineAt(i);
            if (!m_titles.empty() && line.fields == m_titles) {
                refuseLine(line, say("the titles once more"));
                continue;
            }
            for (std::size_t column = m_width; column < line.fields.size(); ++column)
                if (!line.fields[column].empty())
                    refuseCell(line, column,
                               say("the line has more fields than there are columns"));
            if (m_grid.isText() && line.fields.size() < m_width)
                m_table.refused.push_back({line.number,
                                           static_cast<std::int64_t>(line.fields.size()) + 1, "",
                                           say("the line ends here: it has {} of {} fields",
                                               line.fields.size(), m_width)});
            m_rows.push_back(i);
            m_table.ids.push_back(m_table.lines.size());
            m_table.lines.push_back(line.number);
        }
    }

    void refuseCell(const GridLine& line, std::size_t column, std::string reason) {
        m_table.refused.push_back({line.number, static_cast<std::int64_t>(column) + 1,
                                   line.fields[column], std::move(reason)});
    }

    void addColumns() {
        for (std::size_t column = 0; column < m_width; ++column) {
            const std::string title = column < m_titles.size() ? m_titles[column] : std::string();
            std::vector<std::string> texts;
            for (const std::size_t row : m_rows)
                texts.push_back(column < lineAt(row).fields.size() ? lineAt(row).fields[column]
                                                                   : std::string());
            if (title.empty() && std::ranges::all_of(texts, &std::string::empty))
                continue;
            GridColumn made;
            made.source = static_cast<std::int64_t>(column) + 1;
            made.name = uniqueColumnName(
                m_table, title.empty() ? "Column " + std::to_string(column + 1) : title);
            addColumn(std::move(made), column, std::move(texts));
        }
    }

    void addColumn(GridColumn made, std::size_t column, std::vector<std::string> texts) {
        const auto chosen = m_reading.kinds.find(made.name);
        made.kind = chosen == m_reading.kinds.end() ? guessedKind(texts) : chosen->second;
        made.holdsTimes =
            made.kind == ListColumnKind::Time || (isReckoned(made.kind) && saysTimes(made.name));
        GridColumn penalty;
        bool hasPenalty = false;
        for (std::size_t row = 0; row < texts.size(); ++row) {
            CellValue value = valueAs(made.kind, texts[row]);
            if (!value.reason.empty())
                refuseCell(
                    lineAt(m_rows[row]), column,
                    say("{}: the column is {}", value.reason, translated(kindName(made.kind))));
            hasPenalty = hasPenalty || value.penalty;
            GridCell& behind = penalty.cells.emplace_back();
            if (value.penalty) {
                behind.number = static_cast<double>(*value.penalty);
                behind.text = std::to_string(*value.penalty);
            }
            made.cells.push_back({std::move(texts[row]), value.number, value.isStatus});
        }
        const std::string name = made.name;
        penalty.source = made.source;
        m_table.columns.push_back(std::move(made));
        if (!hasPenalty)
            return;
        penalty.name = uniqueColumnName(m_table, name + " penalty");
        penalty.kind = ListColumnKind::Whole;
        penalty.isDerived = true;
        m_table.columns.push_back(std::move(penalty));
    }

    const ListGrid& m_grid;
    const TableReading& m_reading;
    ListTable m_table;
    std::size_t m_first = 0;
    std::size_t m_width = 0;
    std::vector<std::string> m_titles;
    std::vector<std::size_t> m_rows; ///< places of their lines
};

} // namespace

ListTable tableOf(const ListGrid& grid, const TableReading& reading) {
    return TableMaker(grid, reading).make();
}

} // namespace kavela
