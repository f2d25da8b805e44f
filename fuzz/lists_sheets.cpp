#include "harness.h"
#include "tables/packed.h"
#include "tables/sheet_reader.h"
#include "tables/table_error.h"
#include "tables/table_reading.h"

namespace {

using namespace kavela;

void checkSheets(const std::string& bytes) {
    try {
        for (const ListGrid& sheet : readSheets(bytes)) {
            fuzz::require(!sheet.name.empty() && sheet.lines.size() <= MostGridLines);
            for (const GridLine& line : sheet.lines)
                fuzz::require(line.fields.size() <= MostGridColumns);
            // Cells in the same place over and over are legal and cost their time.
            if (sheet.lines.size() < 1000)
                (void)tableOf(sheet);
        }
    } catch (const TableError& error) {
        fuzz::require(*error.what() != 0);
    }
}

} // namespace

/// Spreadsheets: the bytes as a whole file, and, since what is packed hides from the fuzzer, as the
/// sheet of each kind of file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    checkSheets(text);
    checkSheets(test::packed({{"content.xml", text}}));
    checkSheets(test::packed(
        {{"xl/workbook.xml", R"(<workbook><sheets><sheet name="a" r:id="r"/></sheets></workbook>)"},
         {"xl/_rels/workbook.xml.rels", R"(<r><r Id="r" Target="s.xml"/></r>)"},
         {"xl/sharedStrings.xml", "<sst><si><t>Name</t></si></sst>"},
         {"xl/styles.xml", R"(<s><cellXfs><xf numFmtId="14"/><xf numFmtId="45"/></cellXfs></s>)"},
         {"xl/s.xml", text}}));
    return 0;
}
