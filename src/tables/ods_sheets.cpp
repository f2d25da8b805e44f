#include "tables/ods_sheets.h"

#include "common/text.h"
#include "common/typed_number.h"
#include "tables/sheet_grid.h"
#include "tables/table_error.h"
#include "tables/zip_parts.h"

#include <pugixml.hpp>

#include <algorithm>
#include <optional>
#include <string_view>

namespace kavela {

namespace {

/// The text of a cell: its paragraphs with blanks between them, blanks that are counted, notes of
/// the author left out. Deeper than people format a text it is not looked into.
void appendOdsText(const pugi::xml_node& node, std::string& text, int depth) {
    constexpr int Deepest = 32;
    for (const pugi::xml_node child : node.children()) {
        const std::string_view name = child.name();
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            text += child.value();
        else if (name == "text:s" || name == "text:tab" || name == "text:line-break")
            text += ' ';
        else if (name != "office:annotation" && depth < Deepest)
            appendOdsText(child, text, depth + 1);
        if (name == "text:p" && child.next_sibling("text:p"))
            text += ' ';
    }
}

std::string odsText(const pugi::xml_node& cell) {
    std::string text;
    appendOdsText(cell, text, 0);
    return text;
}

/// "PT00H01M32.45S" as seconds.
std::optional<double> odsSeconds(std::string_view duration) {
    if (!duration.starts_with("PT"))
        return std::nullopt;
    duration.remove_prefix(2);
    double seconds = 0;
    while (!duration.empty()) {
        const std::size_t end = duration.find_first_of("HMS");
        const auto number =
            end == duration.npos ? std::nullopt : typedReal(duration.substr(0, end));
        if (!number)
            return std::nullopt;
        seconds += *number * (duration[end] == 'H' ? 3600 : duration[end] == 'M' ? 60 : 1);
        duration.remove_prefix(end + 1);
    }
    return seconds;
}

/// Reads the cells of one sheet.
class OdsSheet {
public:
    explicit OdsSheet(SheetGrid& grid) : m_grid(grid) {}

    /// Rows stand in groups and among headings too, which may nest.
    void read(const pugi::xml_node& table, int depth = 0) {
        constexpr int Deepest = 16;
        for (const pugi::xml_node child : table.children()) {
            const std::string_view name = child.name();
            if (m_grid.isFull())
                return;
            if (name == "table:table-row")
                takeRow(child);
            else if (name.starts_with("table:table-") && depth < Deepest)
                read(child, depth + 1);
        }
    }

private:
    static std::int64_t repeats(const pugi::xml_node& node, const char* attribute) {
        constexpr long long Most = 10'000'000;
        return std::clamp(node.attribute(attribute).as_llong(1), 1LL, Most);
    }

    static bool hasContent(const pugi::xml_node& row) {
        for (const pugi::xml_node cell : row.children())
            if (cell.first_child() || cell.attribute("office:value-type") ||
                cell.attribute("table:formula"))
                return true;
        return false;
    }

    void takeRow(const pugi::xml_node& row) {
        const std::int64_t times = repeats(row, "table:number-rows-repeated");
        // An empty row stands for all that is below the list, up to a million lines.
        const std::int64_t filled = hasContent(row) ? times : 0;
        for (std::int64_t i = 0; i < filled && !m_grid.isFull(); ++i)
            takeCells(row, m_line + i);
        m_line += times;
    }

    void takeCells(const pugi::xml_node& row, std::int64_t line) {
        std::int64_t column = 1;
        for (const pugi::xml_node cell : row.children()) {
            const std::int64_t times = repeats(cell, "table:number-columns-repeated");
            if (std::string_view(cell.name()) == "table:table-cell")
                takeCell(cell, line, column, times);
            column += times;
        }
    }

    void takeCell(const pugi::xml_node& cell, std::int64_t line, std::int64_t column,
                  std::int64_t times) {
        const std::string_view formula = cell.attribute("table:formula").value();
        const std::string_view type = cell.attribute("office:value-type").value();
        const std::string_view ownType = cell.attribute("calcext:value-type").value();
        const std::string text = cellText(cell, type);
        if (ownType == "error") {
            m_grid.refuse(line, column, text, "the cell has an error");
            return;
        }
        if (!formula.empty() && type.empty() && text.empty()) {
            m_grid.refuse(line, column, std::string(formula),
                          "the formula has no value; let the spreadsheet compute and save it");
            return;
        }
        const std::int64_t rows = repeats(cell, "table:number-rows-spanned");
        if (rows > 1)
            m_grid.merge({line, line + rows - 1, column});
        constexpr auto Most = static_cast<std::int64_t>(MostGridColumns);
        for (std::int64_t i = 0; !text.empty() && i < std::min(times, Most); ++i)
            m_grid.add(line, column + i, text);
    }

    static std::string cellText(const pugi::xml_node& cell, std::string_view type) {
        if (type == "float" || type == "percentage" || type == "currency")
            return sheetNumberText(cell.attribute("office:value").value());
        if (type == "date")
            return std::string(cell.attribute("office:date-value").value()).substr(0, 10);
        if (type == "time") {
            const auto seconds = odsSeconds(cell.attribute("office:time-value").value());
            return seconds ? sheetTimeText(*seconds) : odsText(cell);
        }
        return odsText(cell);
    }

    SheetGrid& m_grid;
    std::int64_t m_line = 1;
};

bool isOdsLocked(ZipParts& parts) {
    const auto manifest = parts.content("META-INF/manifest.xml");
    return manifest && manifest->find("encryption-data") != std::string::npos;
}

} // namespace

std::vector<ListGrid> odsSheets(ZipParts& parts, const std::string& content) {
    if (isOdsLocked(parts))
        throw TableError(say("The spreadsheet is protected by a password. Save it without one and "
                             "open it again."));
    pugi::xml_document document;
    const auto result = document.load_buffer(content.data(), content.size(),
                                             pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result)
        throw TableError(std::string("The spreadsheet is damaged: its content is no XML (") +
                         result.description() + ").");
    const pugi::xml_node body = document.document_element().child("office:body");
    const pugi::xml_node spreadsheet = body.child("office:spreadsheet");
    if (!spreadsheet)
        throw TableError(
            "The document is no spreadsheet; a list is read from .xlsx, .ods or text.");
    std::vector<ListGrid> sheets;
    std::size_t cells = 0;
    for (const pugi::xml_node table : spreadsheet.children("table:table")) {
        SheetGrid grid(table.attribute("table:name").value());
        grid.countFrom(cells);
        OdsSheet(grid).read(table);
        cells = grid.cells();
        sheets.push_back(grid.finished());
    }
    return sheets;
}

} // namespace kavela
