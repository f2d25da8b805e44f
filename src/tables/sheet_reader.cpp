#include "tables/sheet_reader.h"

#include "common/number_text.h"
#include "common/text.h"
#include "tables/ods_sheets.h"
#include "tables/sheet_grid.h"
#include "tables/table_error.h"
#include "tables/xlsx_sheets.h"
#include "tables/zip_parts.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace kavela {

namespace {

/// Every merge walks its lines: a sheet made of merges over merges would take for ever.
constexpr std::size_t MostFilledLines = 1'000'000;

} // namespace

ListFormat listFormatOf(std::string_view bytes) {
    if (bytes.starts_with("PK\x03\x04"))
        return ListFormat::Spreadsheet;
    if (bytes.starts_with("\xD0\xCF\x11\xE0"))
        return ListFormat::OldSpreadsheet;
    return bytes.starts_with("%PDF-") ? ListFormat::Pdf : ListFormat::Text;
}

std::vector<ListGrid> readSheets(std::string_view bytes) {
    if (listFormatOf(bytes) == ListFormat::OldSpreadsheet)
        throw TableError(say("This is a spreadsheet with a password or of the old kind (.xls). "
                             "Save it without a password as .xlsx, .ods or text (CSV)."));
    ZipParts parts(bytes);
    if (const auto workbook = parts.content("xl/workbook.xml"))
        return xlsxSheets(parts, *workbook);
    if (const auto content = parts.content("content.xml"))
        return odsSheets(parts, *content);
    throw TableError(say("The file is packed, but holds no spreadsheet (.xlsx or .ods)."));
}

SheetGrid::SheetGrid(std::string name) {
    m_grid.name = name.empty() ? "Sheet" : std::move(name);
}

void SheetGrid::add(std::int64_t line, std::int64_t column, std::string text) {
    if (text.empty() || m_isFull)
        return;
    const bool isBehind = !m_grid.lines.empty() && line < m_grid.lines.back().number;
    if (isBehind || line < 1 || column < 1) {
        refuse(line, column, std::move(text), "the cell stands at no place of the sheet");
        return;
    }
    if (std::cmp_greater(column, MostGridColumns)) {
        refuse(line, column, std::move(text), "the sheet has too many columns");
        return;
    }
    const bool isNewLine = m_grid.lines.empty() || line > m_grid.lines.back().number;
    std::vector<std::string>* fields = isNewLine ? nullptr : &m_grid.lines.back().fields;
    const std::size_t present = fields ? fields->size() : 0;
    const auto needed = static_cast<std::size_t>(column);
    m_cells += needed > present ? needed - present : 0;
    if (m_cells > MostGridCells || (isNewLine && m_grid.lines.size() >= MostGridLines)) {
        refuseRest(line, column, std::move(text));
        return;
    }
    if (isNewLine)
        fields = &m_grid.lines.emplace_back(GridLine{line, {}}).fields;
    if (needed > present)
        fields->resize(needed);
    (*fields)[needed - 1] = std::move(text);
}

void SheetGrid::refuseRest(std::int64_t line, std::int64_t column, std::string text) {
    m_isFull = true;
    refuse(line, column, std::move(text),
           "the sheet is too long: this and all behind it was left out");
}

void SheetGrid::refuse(std::int64_t line, std::int64_t column, std::string text,
                       std::string reason) {
    // A sheet of nothing but errors must not become a list as long as the sheet's empty part.
    constexpr std::size_t MostRefused = 10'000;
    if (m_grid.refused.size() < MostRefused)
        m_grid.refused.push_back({line, column, std::move(text), std::move(reason)});
}

void SheetGrid::fill(const MergedCells& cells) {
    const auto first =
        std::ranges::lower_bound(m_grid.lines, cells.firstLine, {}, &GridLine::number);
    const auto place = static_cast<std::size_t>(cells.column - 1);
    if (first == m_grid.lines.end() || first->number != cells.firstLine ||
        place >= first->fields.size() || first->fields[place].empty())
        return;
    const std::string text = first->fields[place];
    for (auto line = first + 1; line != m_grid.lines.end() && line->number <= cells.lastLine;
         ++line) {
        if (++m_filledLines >= MostFilledLines)
            return;
        const std::size_t wider = place + 1 - std::min(line->fields.size(), place + 1);
        if (m_cells + wider > MostGridCells)
            return;
        m_cells += wider;
        line->fields.resize(line->fields.size() + wider);
        if (line->fields[place].empty())
            line->fields[place] = text;
    }
}

ListGrid SheetGrid::finished() {
    std::size_t filled = 0;
    for (const MergedCells& cells : m_merged)
        if (cells.column >= 1 && std::cmp_less_equal(cells.column, MostGridColumns) &&
            cells.lastLine > cells.firstLine) {
            fill(cells);
            ++filled;
        }
    if (filled > 0)
        m_grid.notes.push_back(
            say("The sheet \"{}\" has merged cells: their value stands in each of their lines.",
                m_grid.name));
    if (m_filledLines >= MostFilledLines)
        m_grid.notes.push_back("The sheet \"" + m_grid.name +
                               "\" has too many merged cells: not all of them were filled.");
    return std::move(m_grid);
}

std::string sheetNumberText(std::string_view written) {
    double value = 0;
    const char* const end = written.data() + written.size();
    const auto [rest, fault] = std::from_chars(written.data(), end, value);
    const bool isNumber = fault == std::errc() && rest == end && std::isfinite(value);
    return isNumber ? plainText(value) : std::string(written);
}

std::string sheetTimeText(double seconds) {
    constexpr double Longest = 1e9;
    if (!(seconds >= 0 && seconds < Longest))
        return plainText(seconds);
    const auto thousandths = static_cast<std::int64_t>(std::llround(seconds * 1000));
    const std::int64_t minutes = thousandths / 60'000;
    const std::string rest =
        fmt::format("{:02}.{:03}", thousandths / 1000 % 60, thousandths % 1000);
    return minutes < 60 ? fmt::format("{}:{}", minutes, rest)
                        : fmt::format("{}:{:02}:{}", minutes / 60, minutes % 60, rest);
}

} // namespace kavela
