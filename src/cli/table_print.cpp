#include "cli/table_print.h"

#include "common/display_text.h"
#include "common/json_encode.h"
#include "tables/shown_decimals.h"
#include "tables/table_text.h"

#include <algorithm>
#include <vector>

namespace kavela::cli {

namespace {

constexpr int WidestTableColumn = 32;

/// A column as it is printed.
struct PrintedTableColumn {
    std::string title;
    bool isRight = false;
    int width = 0;
    std::vector<std::string> texts;
};

std::string tableLineOf(std::string_view text) {
    std::string line(text);
    std::ranges::replace(line, '\n', ' ');
    return printable(line);
}

void addPrinted(std::vector<PrintedTableColumn>& columns, PrintedTableColumn column) {
    column.width = displayWidth(column.title);
    for (const std::string& text : column.texts)
        column.width = std::max(column.width, displayWidth(text));
    column.width = std::min(column.width, WidestTableColumn);
    columns.push_back(std::move(column));
}

std::string joinedText(const TablePrint& print, const JoinedRow& joined) {
    std::string text;
    for (const std::size_t athlete : joined.athletes)
        text += (text.empty() ? "" : " or ") + print.athletes[athlete].name;
    return tableLineOf(joined.certainty == JoinCertainty::Unsure ? text + "?" : text);
}

std::vector<PrintedTableColumn> printedTable(const TablePrint& print) {
    std::vector<PrintedTableColumn> columns;
    for (const GridColumn& column : print.table.columns) {
        PrintedTableColumn printed{tableLineOf(column.name), isReckoned(column.kind), 0, {}};
        const ShownDecimals decimals(column);
        for (const GridCell& cell : column.cells)
            printed.texts.push_back(tableLineOf(decimals.textOf(cell)));
        addPrinted(columns, std::move(printed));
    }
    if (!print.joined.empty()) {
        PrintedTableColumn printed{"athlete", false, 0, {}};
        for (const JoinedRow& joined : print.joined)
            printed.texts.push_back(joinedText(print, joined));
        addPrinted(columns, std::move(printed));
    }
    return columns;
}

template <class TextOf>
std::string printedLine(const std::vector<PrintedTableColumn>& columns, TextOf textOf) {
    std::string line;
    for (const PrintedTableColumn& column : columns) {
        const std::string& text = textOf(column);
        // A number that is wider than its column loses no digit.
        line += line.empty() ? "" : "  ";
        line += column.isRight ? rightAligned(text, column.width) : fitted(text, column.width);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string refusedText(const RefusedCell& cell) {
    std::string text = "Line " + std::to_string(cell.line);
    if (cell.column > 0)
        text += ", column " + std::to_string(cell.column);
    if (!cell.text.empty())
        text += ", \"" + tableLineOf(cell.text) + '"';
    return text + ": " + tableLineOf(cell.reason) + '\n';
}

std::string jsonCell(const GridColumn& column, std::size_t row) {
    const GridCell& cell = column.cells[row];
    if (column.kind == ListColumnKind::Date)
        return cell.number ? encode(plainCellText(column, row)) : "null";
    if (cell.number)
        return encode(*cell.number);
    const bool isWord = cell.isStatus || column.kind == ListColumnKind::Text;
    return isWord && !cell.text.empty() ? encode(validUtf8(cell.text)) : "null";
}

std::string jsonColumns(const ListTable& table) {
    std::string text;
    for (const GridColumn& column : table.columns)
        text += (text.empty() ? "{\"name\":" : ",{\"name\":") + encode(validUtf8(column.name)) +
                ",\"kind\":\"" + std::string(kindName(column.kind)) +
                "\",\"derived\":" + (column.isDerived ? "true}" : "false}");
    return text;
}

std::string jsonRows(const ListTable& table) {
    std::string text;
    for (std::size_t row = 0; row < table.rows(); ++row) {
        text += row > 0 ? ",[" : "[";
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            text += (i > 0 ? "," : "") + jsonCell(table.columns[i], row);
        text += ']';
    }
    return text;
}

std::string jsonRefused(const ListTable& table) {
    std::string text;
    for (const RefusedCell& cell : table.refused)
        text += (text.empty() ? "{\"line\":" : ",{\"line\":") + std::to_string(cell.line) +
                ",\"column\":" + (cell.column > 0 ? std::to_string(cell.column) : "null") +
                ",\"text\":" + encode(validUtf8(cell.text)) +
                ",\"reason\":" + encode(validUtf8(cell.reason)) + '}';
    return text;
}

std::string jsonJoined(const TablePrint& print) {
    std::string text;
    for (const JoinedRow& joined : print.joined)
        if (joined.certainty == JoinCertainty::Certain)
            text +=
                (text.empty() ? "{\"row\":" : ",{\"row\":") + std::to_string(joined.row) +
                ",\"athlete\":" + encode(validUtf8(print.athletes[joined.athletes.front()].name)) +
                '}';
    return text;
}

} // namespace

std::string tableText(const TablePrint& print, const Terminal& terminal) {
    const std::vector<PrintedTableColumn> columns = printedTable(print);
    const std::string head = printedLine(
        columns, [](const auto& column) -> const auto& { return column.title; });
    std::string text = terminal.hasColours ? "\x1b[1m" + head + "\x1b[0m" : head;
    auto group = print.table.groups.begin();
    for (std::size_t row = 0; row < print.table.rows(); ++row) {
        if (group != print.table.groups.end() && group->first == row)
            text += tableLineOf((group++)->key) + '\n';
        text += printedLine(
            columns, [&](const auto& column) -> const auto& { return column.texts[row]; });
    }
    text += counted(static_cast<std::int64_t>(print.table.rows()), "row", "rows");
    if (!print.table.refused.empty())
        text += ", " + std::to_string(print.table.refused.size()) + " refused:";
    text += '\n';
    for (const RefusedCell& cell : print.table.refused)
        text += refusedText(cell);
    return text;
}

std::string tableJson(const TablePrint& print) {
    const std::string& separator = print.table.separator;
    return "{\"separator\":" + (separator.empty() ? "null" : encode(separator)) + ",\"columns\":[" +
           jsonColumns(print.table) + "],\"rows\":[" + jsonRows(print.table) + "],\"refused\":[" +
           jsonRefused(print.table) + "],\"joined\":[" + jsonJoined(print) + "]}\n";
}

} // namespace kavela::cli
