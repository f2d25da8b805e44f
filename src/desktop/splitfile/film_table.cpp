#include "desktop/splitfile/film_table.h"

#include "desktop/shell/tables/column_table.h"

namespace kavela::desktop {

ColumnTable* filmTable(RowModel& rows, const char* name) {
    auto* const table = new ColumnTable(rows, name);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setAlternatingRowColors(false);
    table->keepOrder();
    return table;
}

} // namespace kavela::desktop
