#include "tables/told_cells.h"

#include "common/text.h"
#include "tables/row_crew.h"

#include <algorithm>
#include <string>
#include <utility>

namespace kavela {

namespace {

constexpr std::size_t MostToldCells = 200;

void tellOne(const ListTable& table, std::size_t column, std::size_t row, Why& why,
             ToldOfCell what) {
    const GridColumn& told = table.columns[column];
    std::string name = crewOfRow(table, row).value_or(std::string());
    if (name.empty())
        name = told.name;
    const double number = what == ToldOfCell::CountsAsOne ? 1 : told.cells[row].number.value_or(0);
    why.input(std::move(name), number, placeOfCell(table, column, row));
}

} // namespace

std::optional<Place> placeOfCell(const ListTable& table, std::size_t column, std::size_t row) {
    if (table.lines[row] <= 0)
        return std::nullopt;
    Place place;
    place.line = table.lines[row];
    if (table.columns[column].source > 0)
        place.column = table.columns[column].source;
    return place;
}

void tellCells(const ListTable& table, std::size_t column, std::span<const std::size_t> rows,
               Why& why, ToldOfCell what) {
    for (const std::size_t row : rows.first(std::min(rows.size(), MostToldCells)))
        tellOne(table, column, row, why, what);
    if (rows.size() > MostToldCells)
        why.note(say("Of {} rows the first {} are told.", rows.size(), MostToldCells));
}

} // namespace kavela
