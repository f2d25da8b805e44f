#include "tables/sheet_reader.h"

#include "tables/list_source.h"
#include "tables/packed.h"
#include "tables/table_error.h"
#include "tables/table_reading.h"

#include <gmock/gmock.h>

/// Spreadsheets, with what people and their programs do to them.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string xlsx(const std::string& sheet, const std::string& more = "") {
    return packed(
        {{"xl/workbook.xml",
          R"(<workbook><sheets><sheet name="Final" r:id="rId1"/>)" + more + "</sheets></workbook>"},
         {"xl/_rels/workbook.xml.rels",
          R"(<Relationships><Relationship Id="rId1" Target="worksheets/sheet1.xml"/>)"
          R"(<Relationship Id="rId2" Target="/xl/worksheets/sheet2.xml"/></Relationships>)"},
         {"xl/sharedStrings.xml", "<sst><si><t>Name</t></si><si><r><t>Šárka </t></r><r><t>Bell</t>"
                                  "</r><rPh><t>x</t></rPh></si></sst>"},
         {"xl/styles.xml", R"(<styleSheet><numFmts><numFmt numFmtId="164" )"
                           R"(formatCode="[mm]:ss.00"/></numFmts><cellXfs><xf numFmtId="0"/>)"
                           R"(<xf numFmtId="164"/><xf numFmtId="14"/></cellXfs></styleSheet>)"},
         {"xl/worksheets/sheet1.xml", "<worksheet>" + sheet + "</worksheet>"},
         {"xl/worksheets/sheet2.xml",
          R"(<worksheet><sheetData><row r="1"><c r="A1"><v>7</v></c></row></sheetData></worksheet>)"}});
}

std::string ods(const std::string& rows) {
    return packed({{"content.xml", R"(<office:document-content><office:body><office:spreadsheet>)"
                                   R"(<table:table table:name="Final">)" +
                                       rows +
                                       "</table:table></office:spreadsheet></office:body>"
                                       "</office:document-content>"}});
}

ListGrid sheetOf(const std::string& bytes) {
    return readSheets(bytes).at(0);
}

std::string faultOfSheets(const std::string& bytes) {
    try {
        (void)chosenList(readLists(bytes), "");
    } catch (const TableError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(XlsxSheets, ReadEveryKindOfCell) {
    const ListGrid grid = sheetOf(xlsx(
        R"(<sheetData><row r="2"><c r="A2" t="s"><v>0</v></c><c r="B2" t="inlineStr"><is><t>Time)"
        R"(</t></is></c></row><row r="5"><c r="A5" t="s"><v>1</v></c>)"
        R"(<c r="B5" s="1"><v>1.0700231481481481E-3</v></c><c r="C5" s="2"><v>46145</v></c>)"
        R"(<c r="E5"><f>A1</f><v>92.450000000000003</v></c></row></sheetData>)"));
    ASSERT_THAT(grid.lines, SizeIs(2));
    EXPECT_EQ(grid.lines[0].number, 2);
    EXPECT_THAT(grid.lines[0].fields, ElementsAre("Name", "Time"));
    EXPECT_EQ(grid.lines[1].number, 5);
    EXPECT_THAT(grid.lines[1].fields,
                ElementsAre("Šárka Bell", "1:32.450", "2026-05-03", "", "92.45"));
}

TEST(XlsxSheets, RefuseWhatHasNoValue) {
    const ListGrid grid =
        sheetOf(xlsx(R"(<sheetData><row r="1"><c r="A1"><f>B1+C1</f></c><c r="B1" t="e"><v>#REF!)"
                     R"(</v></c><c r="C1" t="s"><v>99</v></c><c r="ZZZ1"><v>1</v></c></row>)"
                     R"(<row r="9999999"><c r="A9999999"><v>1</v></c></row></sheetData>)"));
    ASSERT_THAT(grid.refused, SizeIs(4));
    EXPECT_EQ(grid.refused[0].text, "=B1+C1");
    EXPECT_THAT(grid.refused[0].reason, HasSubstr("no value"));
    EXPECT_THAT(grid.refused[1].reason, HasSubstr("error"));
    EXPECT_THAT(grid.refused[2].reason, HasSubstr("missing"));
    EXPECT_THAT(grid.refused[3].reason, HasSubstr("too many columns"));
    EXPECT_THAT(grid.lines, SizeIs(1)); // the far one, and nothing between
}

TEST(XlsxSheets, FillMergedCellsDownwards) {
    const ListGrid grid = sheetOf(xlsx(
        R"(<sheetData><row r="1"><c r="A1"><v>1</v></c><c r="B1"><v>5</v></c></row><row r="2">)"
        R"(<c r="C2"><v>2</v></c></row><row r="3"><c r="A3"><v>3</v></c></row></sheetData>)"
        R"(<mergeCells><mergeCell ref="A1:A2"/><mergeCell ref="B1:D1"/></mergeCells>)"));
    EXPECT_THAT(grid.lines[0].fields, ElementsAre("1", "5"));
    EXPECT_THAT(grid.lines[1].fields, ElementsAre("1", "", "2"));
    EXPECT_THAT(grid.lines[2].fields, ElementsAre("3"));
    EXPECT_THAT(grid.notes, SizeIs(1));
}

TEST(OdsSheets, ReadEveryKindOfCell) {
    const ListGrid grid = sheetOf(ods(
        R"(<table:table-row><table:table-cell office:value-type="string"><text:p>Anna<text:s/>)"
        R"(Bell</text:p></table:table-cell><table:table-cell table:number-columns-repeated="2"/>)"
        R"(<table:table-cell office:value-type="float" office:value="92.45"/></table:table-row>)"
        R"(<table:table-row table:number-rows-repeated="1000000"><table:table-cell/>)"
        R"(</table:table-row><table:table-row table:number-rows-repeated="2"><table:table-cell )"
        R"(office:value-type="time" office:value-time="" office:time-value="PT00H01M32.45S"/>)"
        R"(<table:table-cell office:value-type="date" office:date-value="2026-05-03T10:00:00"/>)"
        R"(<table:table-cell table:formula="of:=1"/></table:table-row>)"));
    ASSERT_THAT(grid.lines, SizeIs(3));
    EXPECT_THAT(grid.lines[0].fields, ElementsAre("Anna Bell", "", "", "92.45"));
    EXPECT_EQ(grid.lines[1].number, 1'000'002);
    EXPECT_THAT(grid.lines[2].fields, ElementsAre("1:32.450", "2026-05-03"));
    EXPECT_THAT(grid.refused, SizeIs(2));
}

TEST(OdsSheets, TakeNoMoreThanAListHas) {
    const ListGrid grid = sheetOf(
        ods(R"(<table:table-row table:number-rows-repeated="1048576"><table:table-cell )"
            R"(table:number-columns-repeated="16384" office:value-type="float" office:value="1"/>)"
            R"(</table:table-row>)"));
    EXPECT_LE(grid.lines.size() * MostGridColumns, MostGridCells + MostGridColumns);
    ASSERT_THAT(grid.refused, SizeIs(1));
    EXPECT_THAT(grid.refused[0].reason, HasSubstr("too long"));
}

TEST(Sheets, AreAskedForWhereThereAreSeveral) {
    const std::string bytes = xlsx(R"(<sheetData><row><c><v>1</v></c></row></sheetData>)",
                                   R"(<sheet name="Heats" r:id="rId2"/>)");
    EXPECT_THAT(faultOfSheets(bytes), HasSubstr("choose one of \"Final\", \"Heats\""));
    EXPECT_EQ(chosenList(readLists(bytes), "heats").lines[0].fields[0], "7");
    const std::string oneIsEmpty = xlsx("", R"(<sheet name="Heats" r:id="rId2"/>)");
    EXPECT_EQ(chosenList(readLists(oneIsEmpty), "").name, "Heats");
}

TEST(Sheets, SayWhatIsWrong) {
    EXPECT_THAT(faultOfSheets(packed({{"content.xml", "x"}}, "secret")), HasSubstr("password"));
    EXPECT_THAT(faultOfSheets(packed({{"content.xml", "x"},
                                      {"META-INF/manifest.xml", "<manifest:encryption-data/>"}})),
                HasSubstr("password"));
    EXPECT_THAT(faultOfSheets(packed({{"word/document.xml", "x"}})), HasSubstr("no spreadsheet"));
    EXPECT_THAT(faultOfSheets(packed({{"content.xml", "<a"}})), HasSubstr("no XML"));
    EXPECT_THAT(faultOfSheets(xlsx("", R"(<sheet name="Gone" r:id="rId9"/>)")),
                HasSubstr("\"Gone\" is missing"));
    const std::string whole = xlsx("<sheetData/>");
    EXPECT_THAT(faultOfSheets(whole.substr(0, whole.size() / 2)), HasSubstr("damaged"));
    EXPECT_THAT(faultOfSheets(packed({{"content.xml", std::string(129U << 20, ' ')}})),
                HasSubstr("over 128 MB"));
}

} // namespace kavela::test
