#include "subjects.h"

#include "child_process.h"
#include "common/text_file.h"
#include "sample_files.h"
#include "tables/list_source.h"
#include "tables/packed.h"
#include "tables/table_steps.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// A long spreadsheet of results opened as a table, from its file to columns with kinds, beside
/// Python taking the text of each cell out of the same file.
namespace kavela::bench {

namespace {

constexpr int SheetRows = 5000; ///< below the titles
constexpr std::array<std::string_view, 8> SheetTitles{"Rank",     "Bib",  "Name", "Nation",
                                                      "Category", "Date", "Time", "Penalties"};

constexpr std::string_view XmlHead = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)";

/// Spreadsheets write each text once and name it by its number.
class SharedTexts {
public:
    int numberOf(const std::string& text) {
        ++m_uses;
        const auto [known, isNew] = m_numbers.try_emplace(text, int(m_numbers.size()));
        if (isNew)
            m_items += "<si><t>" + text + "</t></si>";
        return known->second;
    }

    [[nodiscard]] std::string part() const {
        return fmt::format("{}<sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/"
                           "main\" count=\"{}\" uniqueCount=\"{}\">{}</sst>",
                           XmlHead, m_uses, m_numbers.size(), m_items);
    }

private:
    std::map<std::string, int> m_numbers;
    std::string m_items;
    int m_uses = 0;
};

/// Lines of one sheet, cell by cell.
class SheetText {
public:
    explicit SheetText(SharedTexts& texts) : m_texts(texts) {}

    void beginRow() {
        m_column = 'A';
        m_text += fmt::format("<row r=\"{}\" spans=\"1:8\">", ++m_row);
    }
    void endRow() { m_text += "</row>"; }

    void addText(const std::string& text) { addCell(" t=\"s\"", m_texts.numberOf(text)); }
    template <class Number>
    void addNumber(Number number) {
        addCell("", number);
    }
    void addDay(int day) { addCell(" s=\"1\"", day); }

    [[nodiscard]] std::string part() const {
        return fmt::format("{}<worksheet xmlns=\"http://schemas.openxmlformats.org/"
                           "spreadsheetml/2006/main\"><dimension ref=\"A1:H{}\"/><sheetData>{}"
                           "</sheetData></worksheet>",
                           XmlHead, m_row, m_text);
    }

private:
    template <class Value>
    void addCell(std::string_view kind, Value value) {
        m_text += fmt::format("<c r=\"{}{}\"{}><v>{}</v></c>", m_column++, m_row, kind, value);
    }

    SharedTexts& m_texts;
    std::string m_text;
    int m_row = 0;
    char m_column = 'A';
};

void addResult(SheetText& sheet, int number) {
    static const std::array<std::string, 5> Nations{"CZE", "FRA", "GER", "SLO", "ESP"};
    static const std::array<std::string, 4> Categories{"K1M", "K1W", "C1M", "C1W"};
    constexpr int FirstDay = 46'000; // in December 2025
    constexpr int BoatsOfARace = 50;
    const auto place = static_cast<std::size_t>(number);
    sheet.beginRow();
    sheet.addNumber(number % BoatsOfARace + 1);
    sheet.addNumber(number * 7 % 300 + 1);
    sheet.addText(fmt::format("Given{} Surname{}", number % 70, number % 1500));
    sheet.addText(Nations[place % Nations.size()]);
    sheet.addText(Categories[place / BoatsOfARace % Categories.size()]);
    sheet.addDay(FirstDay + number / BoatsOfARace);
    sheet.addNumber((8500 + number * 37 % 4000) / 100.0);
    sheet.addNumber(number * 13 % 5 * 2);
    sheet.endRow();
}

/// All parts that a spreadsheet has at least, and that any program opens.
std::map<std::string, std::string> spreadsheetParts() {
    SharedTexts texts;
    SheetText sheet(texts);
    sheet.beginRow();
    for (const std::string_view title : SheetTitles)
        sheet.addText(std::string(title));
    sheet.endRow();
    for (int number = 0; number < SheetRows; ++number)
        addResult(sheet, number);
    const std::string head(XmlHead);
    return {
        {"[Content_Types].xml",
         head + R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
                R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.)"
                R"(relationships+xml"/><Default Extension="xml" ContentType="application/xml"/>)"
                R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.)"
                R"(openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
                R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.)"
                R"(openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
                R"(<Override PartName="/xl/styles.xml" ContentType="application/vnd.)"
                R"(openxmlformats-officedocument.spreadsheetml.styles+xml"/>)"
                R"(<Override PartName="/xl/sharedStrings.xml" ContentType="application/vnd.)"
                R"(openxmlformats-officedocument.spreadsheetml.sharedStrings+xml"/></Types>)"},
        {"_rels/.rels",
         head + R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/)"
                R"(relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/)"
                R"(officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/>)"
                R"(</Relationships>)"},
        {"xl/workbook.xml",
         head + R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
                R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
                R"(<sheets><sheet name="Results" sheetId="1" r:id="rId1"/></sheets></workbook>)"},
        {"xl/_rels/workbook.xml.rels",
         head + R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/)"
                R"(relationships"><Relationship Id="rId1" Type="http://schemas.openxmlformats.org/)"
                R"(officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/>)"
                R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/)"
                R"(officeDocument/2006/relationships/styles" Target="styles.xml"/>)"
                R"(<Relationship Id="rId3" Type="http://schemas.openxmlformats.org/)"
                R"(officeDocument/2006/relationships/sharedStrings" Target="sharedStrings.xml"/>)"
                R"(</Relationships>)"},
        {"xl/styles.xml",
         head + R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
                R"(<fonts count="1"><font/></fonts><fills count="1"><fill/></fills>)"
                R"(<borders count="1"><border/></borders><cellStyleXfs count="1"><xf/>)"
                R"(</cellStyleXfs><cellXfs count="2"><xf numFmtId="0"/><xf numFmtId="14" )"
                R"(applyNumberFormat="1"/></cellXfs></styleSheet>)"},
        {"xl/worksheets/sheet1.xml", sheet.part()},
        {"xl/sharedStrings.xml", texts.part()},
    };
}

class SpreadsheetOnDisk {
public:
    SpreadsheetOnDisk()
        : m_path(m_folder.write("results.xlsx", test::packed(spreadsheetParts()))) {}

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    ScratchFolder m_folder;
    std::filesystem::path m_path;
};

/// Made when it is first asked for.
const SpreadsheetOnDisk& spreadsheetOnDisk() {
    static const SpreadsheetOnDisk made;
    return made;
}

void openSheet(benchmark::State& state) {
    const std::filesystem::path& path = spreadsheetOnDisk().path();
    for ([[maybe_unused]] const auto iteration : state) {
        const TableSteps opened(chosenList(readLists(readListBytes(path)), ""));
        const ListTable& table = opened.table();
        if (table.rows() != SheetRows || table.columns.size() != SheetTitles.size() ||
            !table.refused.empty())
            state.SkipWithError("a cell is missing");
    }
}

constexpr const char* PythonReadsCells = R"(
import sys, zipfile
from xml.etree import ElementTree
NAMES = '{http://schemas.openxmlformats.org/spreadsheetml/2006/main}'
with zipfile.ZipFile(sys.argv[1]) as parts:
    shared = ElementTree.fromstring(parts.read('xl/sharedStrings.xml'))
    sheet = ElementTree.fromstring(parts.read('xl/worksheets/sheet1.xml'))
texts = [''.join(text.text for text in item.iter(NAMES + 't')) for item in shared]
cells = []
for cell in sheet.iter(NAMES + 'c'):
    value = cell.find(NAMES + 'v').text
    cells.append(texts[int(value)] if cell.get('t') == 's' else value)
print(len(cells), end='')
)";

void pythonReadsSheet(benchmark::State& state) {
    const std::string path = spreadsheetOnDisk().path().string();
    const std::string cells = std::to_string((SheetRows + 1) * SheetTitles.size());
    for ([[maybe_unused]] const auto iteration : state)
        if (outputOf({KAVELA_PYTHON, "-c", PythonReadsCells, path}) != cells)
            state.SkipWithError("the peer read other cells");
}

} // namespace

void addSpreadsheet() {
    benchmark::RegisterBenchmark("tables/xlsx_5000", openSheet)->UseRealTime();
    benchmark::RegisterBenchmark("tables/python", pythonReadsSheet)->UseRealTime();
}

} // namespace kavela::bench
