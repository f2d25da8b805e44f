#include "tables/xlsx_sheets.h"

#include "common/number_text.h"
#include "common/reference_date.h"
#include "tables/sheet_grid.h"
#include "tables/table_error.h"
#include "tables/zip_parts.h"

#include <pugixml.hpp>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <map>
#include <optional>
#include <string_view>

namespace kavela {

namespace {

/// How a style shows a number.
enum class XlsxShows { Number, Day, Time };

/// What all sheets of a document share.
struct XlsxBook {
    std::vector<std::string> texts;
    std::vector<XlsxShows> styles; ///< by number of the cell's style
    bool countsFrom1904 = false;
};

pugi::xml_document xlsxXml(const std::string& content, const std::string& part) {
    pugi::xml_document document;
    const auto result = document.load_buffer(content.data(), content.size(),
                                             pugi::parse_default | pugi::parse_ws_pcdata_single);
    if (!result)
        throw TableError("The spreadsheet is damaged: its part " + part + " is no XML (" +
                         result.description() + ").");
    return document;
}

/// The part of a name without the prefix of a name space, whatever writer chose it.
std::string_view xlsxName(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    const std::size_t colon = name.find(':');
    return colon == name.npos ? name : name.substr(colon + 1);
}

pugi::xml_node xlsxChild(const pugi::xml_node& node, std::string_view name) {
    for (const pugi::xml_node child : node.children())
        if (xlsxName(child) == name)
            return child;
    return {};
}

/// A text with its runs; what is written above signs to read them by is left out.
std::string xlsxText(const pugi::xml_node& item) {
    std::string text;
    for (const pugi::xml_node child : item.children()) {
        if (xlsxName(child) == "t")
            text += child.child_value();
        else if (xlsxName(child) == "r")
            text += xlsxChild(child, "t").child_value();
    }
    return text;
}

/// Whether a format written in letters shows a day or a time; what stands in quotes, in brackets
/// (but hours and minutes beyond a day) and behind a backslash is no letter of the format.
XlsxShows shownBy(std::string_view format) {
    bool hasDay = false;
    bool hasTime = false;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char letter = format[i];
        if (letter == '"') {
            i = std::min(format.find('"', i + 1), format.size());
        } else if (letter == '[') {
            const std::size_t end = std::min(format.find(']', i), format.size());
            const std::string_view inside = format.substr(i + 1, end - i - 1);
            hasTime = hasTime || inside.find_first_not_of("hHmMsS") == inside.npos;
            i = end;
        } else if (letter == '\\' || letter == '_') {
            ++i;
        } else if (letter == ';') {
            break; // the first section is that of values above 0
        } else {
            hasDay = hasDay || letter == 'd' || letter == 'D' || letter == 'y' || letter == 'Y';
            hasTime = hasTime || letter == 'h' || letter == 'H' || letter == 's' || letter == 'S';
        }
    }
    return hasDay ? XlsxShows::Day : hasTime ? XlsxShows::Time : XlsxShows::Number;
}

XlsxShows shownByNumber(int format) {
    const bool isDay = (format >= 14 && format <= 17) || format == 22;
    const bool isTime = (format >= 18 && format <= 21) || (format >= 45 && format <= 47);
    return isDay ? XlsxShows::Day : isTime ? XlsxShows::Time : XlsxShows::Number;
}

std::vector<XlsxShows> xlsxStyles(const pugi::xml_node& sheet) {
    std::map<int, XlsxShows> own;
    for (const pugi::xml_node format : xlsxChild(sheet, "numFmts").children())
        own[format.attribute("numFmtId").as_int()] =
            shownBy(format.attribute("formatCode").value());
    std::vector<XlsxShows> styles;
    for (const pugi::xml_node style : xlsxChild(sheet, "cellXfs").children()) {
        const int format = style.attribute("numFmtId").as_int();
        const auto found = own.find(format);
        styles.push_back(found == own.end() ? shownByNumber(format) : found->second);
    }
    return styles;
}

XlsxBook xlsxBook(ZipParts& parts, const pugi::xml_node& workbook) {
    XlsxBook book;
    book.countsFrom1904 = xlsxChild(workbook, "workbookPr").attribute("date1904").as_bool();
    if (const auto texts = parts.content("xl/sharedStrings.xml")) {
        const pugi::xml_document document = xlsxXml(*texts, "sharedStrings.xml");
        for (const pugi::xml_node item : document.document_element().children())
            if (xlsxName(item) == "si")
                book.texts.push_back(xlsxText(item));
    }
    if (const auto styles = parts.content("xl/styles.xml"))
        book.styles = xlsxStyles(xlsxXml(*styles, "styles.xml").document_element());
    return book;
}

/// A place such as "B3" or "$B$3", counted from 1; nothing for any other text.
struct XlsxPlace {
    std::int64_t line = 0;
    std::int64_t column = 0;
};

std::optional<XlsxPlace> xlsxPlace(std::string_view text) {
    constexpr std::int64_t Most = 10'000'000;
    XlsxPlace place;
    for (const char sign : text) {
        const bool isLetter = sign >= 'A' && sign <= 'Z';
        const bool isDigit = sign >= '0' && sign <= '9';
        if (sign == '$')
            continue;
        if ((!isLetter && !isDigit) || (isLetter && place.line > 0))
            return std::nullopt;
        if (isLetter)
            place.column = place.column * 26 + (sign - 'A' + 1);
        else
            place.line = place.line * 10 + (sign - '0');
        if (place.line > Most || place.column > Most)
            return std::nullopt;
    }
    return place.line > 0 && place.column > 0 ? std::optional(place) : std::nullopt;
}

/// A day as spreadsheets count them. What is before March 1900 is shifted by a day that never was.
std::string xlsxDayText(double days, bool countsFrom1904) {
    using namespace std::chrono;
    constexpr double FirstTrue = 61;
    constexpr double LastDay = 2'958'465; // 9999-12-31
    if (!(days >= 0 && days <= LastDay))
        return plainText(days);
    const sys_days begin = countsFrom1904
                               ? sys_days(year{1904} / 1 / 1)
                               : sys_days(year{1899} / 12 / (days < FirstTrue ? 31 : 30));
    const sys_days day = begin + std::chrono::days(static_cast<int>(days));
    return dayText(referenceDate(year_month_day(day)));
}

/// Reads the cells of one sheet.
class XlsxSheet {
public:
    XlsxSheet(const XlsxBook& book, SheetGrid& grid) : m_book(book), m_grid(grid) {}

    void read(const pugi::xml_node& sheet) {
        for (const pugi::xml_node range : xlsxChild(sheet, "mergeCells").children())
            merge(range.attribute("ref").value());
        for (const pugi::xml_node row : xlsxChild(sheet, "sheetData").children()) {
            m_line = row.attribute("r").as_llong(m_line + 1);
            m_column = 0;
            for (const pugi::xml_node cell : row.children())
                if (xlsxName(cell) == "c" && !m_grid.isFull())
                    take(cell);
        }
    }

private:
    void merge(std::string_view range) {
        const std::size_t colon = range.find(':');
        const auto first = xlsxPlace(range.substr(0, colon));
        const auto last = colon == range.npos ? first : xlsxPlace(range.substr(colon + 1));
        if (first && last)
            m_grid.merge({first->line, last->line, first->column});
    }

    void take(const pugi::xml_node& cell) {
        const auto place = xlsxPlace(cell.attribute("r").value());
        m_column = place ? place->column : m_column + 1;
        const std::int64_t line = place ? place->line : m_line;
        const std::string_view type = cell.attribute("t").value();
        const std::string value = xlsxChild(cell, "v").child_value();
        const pugi::xml_node formula = xlsxChild(cell, "f");
        if (type == "e")
            m_grid.refuse(line, m_column, value, "the cell has an error");
        else if (formula && value.empty() && type != "str")
            m_grid.refuse(line, m_column, std::string("=") + formula.child_value(),
                          "the formula has no value; let the spreadsheet compute and save it");
        else if (type == "s" && !value.empty())
            takeShared(line, value);
        else if (type == "inlineStr")
            m_grid.add(line, m_column, xlsxText(xlsxChild(cell, "is")));
        else if (type == "str" || type == "b" || type == "d")
            m_grid.add(line, m_column, value);
        else if (!value.empty())
            m_grid.add(line, m_column, numberText(value, cell.attribute("s").as_ullong()));
    }

    void takeShared(std::int64_t line, const std::string& value) {
        std::size_t index = 0;
        const char* const end = value.data() + value.size();
        const auto [rest, fault] = std::from_chars(value.data(), end, index);
        if (fault == std::errc() && rest == end && index < m_book.texts.size())
            m_grid.add(line, m_column, m_book.texts[index]);
        else
            m_grid.refuse(line, m_column, value, "the text of the cell is missing in the file");
    }

    [[nodiscard]] std::string numberText(const std::string& value, unsigned long long style) const {
        constexpr double SecondsPerDay = 86'400;
        const XlsxShows shows =
            style < m_book.styles.size() ? m_book.styles[style] : XlsxShows::Number;
        double number = 0;
        const char* const end = value.data() + value.size();
        const auto [rest, fault] = std::from_chars(value.data(), end, number);
        if (shows == XlsxShows::Number || fault != std::errc() || rest != end)
            return sheetNumberText(value);
        return shows == XlsxShows::Day ? xlsxDayText(number, m_book.countsFrom1904)
                                       : sheetTimeText(number * SecondsPerDay);
    }

    const XlsxBook& m_book;
    SheetGrid& m_grid;
    std::int64_t m_line = 0;
    std::int64_t m_column = 0;
};

/// The parts that hold the sheets, by the ids that the workbook names them with.
std::map<std::string, std::string> xlsxTargets(ZipParts& parts) {
    std::map<std::string, std::string> targets;
    const auto relations = parts.content("xl/_rels/workbook.xml.rels");
    if (!relations)
        return targets;
    const pugi::xml_document document = xlsxXml(*relations, "workbook.xml.rels");
    for (const pugi::xml_node relation : document.document_element().children()) {
        const std::string target = relation.attribute("Target").value();
        targets[relation.attribute("Id").value()] =
            target.starts_with('/') ? target.substr(1) : "xl/" + target;
    }
    return targets;
}

std::string xlsxRelationOf(const pugi::xml_node& sheet) {
    for (const pugi::xml_attribute attribute : sheet.attributes()) {
        const std::string_view name = attribute.name();
        if (name == "id" || name.ends_with(":id"))
            return attribute.value();
    }
    return {};
}

} // namespace

std::vector<ListGrid> xlsxSheets(ZipParts& parts, const std::string& workbook) {
    const pugi::xml_document document = xlsxXml(workbook, "workbook.xml");
    const XlsxBook book = xlsxBook(parts, document.document_element());
    const std::map<std::string, std::string> targets = xlsxTargets(parts);
    std::vector<ListGrid> sheets;
    std::size_t cells = 0;
    for (const pugi::xml_node sheet : xlsxChild(document.document_element(), "sheets").children()) {
        const auto target = targets.find(xlsxRelationOf(sheet));
        const std::string name = sheet.attribute("name").value();
        const auto content = target == targets.end() ? std::nullopt : parts.content(target->second);
        if (!content)
            throw TableError("The spreadsheet is damaged: its sheet \"" + name + "\" is missing.");
        SheetGrid grid(name);
        grid.countFrom(cells);
        XlsxSheet(book, grid).read(xlsxXml(*content, target->second).document_element());
        cells = grid.cells();
        sheets.push_back(grid.finished());
    }
    return sheets;
}

} // namespace kavela
