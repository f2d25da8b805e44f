#include "harness.h"
#include "tables/list_reader.h"
#include "tables/list_source.h"
#include "tables/table_error.h"
#include "tables/table_reading.h"
#include "tables/table_text.h"

#include <cmath>
#include <utility>

namespace {

using namespace kavela;

void checkTable(const ListGrid& grid) {
    const ListTable table = tableOf(grid);
    std::int64_t before = 0;
    for (const std::int64_t line : table.lines)
        fuzz::require(line > std::exchange(before, line));
    for (const GridColumn& column : table.columns) {
        fuzz::require(!column.name.empty() && column.cells.size() == table.rows());
        for (const GridCell& cell : column.cells)
            fuzz::require(!cell.number || std::isfinite(*cell.number));
    }
    for (const RefusedCell& cell : table.refused)
        fuzz::require(cell.line > 0 && !cell.reason.empty());
    (void)tableCsv(table);
}

} // namespace

/// Lists as text in any encoding, read with the separator that they have and with each other one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    try {
        for (const ListGrid& list : readLists(text))
            checkTable(list);
    } catch (const TableError& error) {
        fuzz::require(*error.what() != 0);
    }
    for (const char* const separator : {"\t", ";", "|", ",", "  ", ""})
        checkTable(readList(text, separator));
    return 0;
}
