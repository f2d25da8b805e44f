#include "tables/table_text.h"

#include "common/delimited_text.h"
#include "common/number_text.h"

namespace kavela {

std::string plainCellText(const GridColumn& column, std::size_t row) {
    const GridCell& cell = column.cells[row];
    if (!cell.number)
        return cell.text;
    return column.kind == ListColumnKind::Date ? dayNumberText(*cell.number)
                                               : plainText(*cell.number);
}

std::string tableCsv(const ListTable& table) {
    std::string text;
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        text += (i > 0 ? ";" : "") + csvField(table.columns[i].name);
    text += '\n';
    for (std::size_t row = 0; row < table.rows(); ++row) {
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            text += (i > 0 ? ";" : "") + csvField(plainCellText(table.columns[i], row));
        text += '\n';
    }
    return text;
}

} // namespace kavela
