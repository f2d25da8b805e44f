#include "tables/table_order.h"

#include "common/folded_text.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace kavela {

namespace {

/// Numbers first, then words beside them, then nothing.
int orderClass(const GridColumn& column, const GridCell& cell) {
    if (cell.number)
        return 0;
    if (isNoValue(cell.text))
        return 3;
    return cell.isStatus || column.kind == ListColumnKind::Text ? 1 : 2;
}

std::vector<std::size_t> inPresentOrder(const ListTable& table) {
    std::vector<std::size_t> rows(table.rows());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    return rows;
}

} // namespace

bool isCellBefore(const GridColumn& column, std::size_t a, std::size_t b) {
    const GridCell& first = column.cells[a];
    const GridCell& second = column.cells[b];
    const int classOfFirst = orderClass(column, first);
    const int classOfSecond = orderClass(column, second);
    if (classOfFirst != classOfSecond)
        return classOfFirst < classOfSecond;
    if (first.number)
        return *first.number < *second.number;
    return isNaturallyBefore(first.text, second.text);
}

ListTable sortedBy(const ListTable& table, std::string_view name, bool isDescending) {
    const GridColumn& column = table.columns[columnPlace(table, name)];
    std::vector<std::size_t> rows = inPresentOrder(table);
    const auto isBefore = [&](std::size_t a, std::size_t b) {
        const bool isSameClass =
            orderClass(column, column.cells[a]) == orderClass(column, column.cells[b]);
        return isDescending && isSameClass ? isCellBefore(column, b, a)
                                           : isCellBefore(column, a, b);
    };
    const auto sortPart = [&](std::size_t first, std::size_t count) {
        const auto begin = rows.begin() + static_cast<std::ptrdiff_t>(first);
        std::stable_sort(begin, begin + static_cast<std::ptrdiff_t>(count), isBefore);
    };
    if (table.groups.empty())
        sortPart(0, rows.size());
    for (const RowGroup& group : table.groups)
        sortPart(group.first, group.count);
    ListTable sorted = withRows(table, rows);
    sorted.groups = table.groups;
    return sorted;
}

ListTable groupedBy(const ListTable& table, std::string_view name) {
    const std::size_t place = columnPlace(table, name);
    std::vector<std::size_t> rows = inPresentOrder(table);
    std::stable_sort(rows.begin(), rows.end(), [&](std::size_t a, std::size_t b) {
        return isCellBefore(table.columns[place], a, b);
    });
    ListTable grouped = withRows(table, rows);
    const GridColumn& column = grouped.columns[place];
    for (std::size_t row = 0; row < grouped.rows(); ++row) {
        const bool isSame = row > 0 && !isCellBefore(column, row - 1, row);
        if (!isSame)
            grouped.groups.push_back({column.cells[row].text, row, 0});
        ++grouped.groups.back().count;
    }
    return grouped;
}

} // namespace kavela
