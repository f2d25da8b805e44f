#include "tables/table.h"

#include "common/text.h"
#include "tables/table_error.h"

#include <algorithm>
#include <charconv>

namespace kavela {

std::optional<double> GridColumn::counted(std::size_t row) const {
    const GridCell& cell = cells[row];
    if (!isReckoned(kind) || !cell.number || (holdsTimes && !isRunTime(*cell.number)))
        return std::nullopt;
    return cell.number;
}

std::size_t columnPlace(const ListTable& table, std::string_view name) {
    const auto exact = std::ranges::find(table.columns, name, &GridColumn::name);
    if (exact != table.columns.end())
        return static_cast<std::size_t>(exact - table.columns.begin());
    const std::string key = titleKey(name);
    for (std::size_t i = 0; !key.empty() && i < table.columns.size(); ++i)
        if (titleKey(table.columns[i].name) == key)
            return i;
    std::size_t number = 0;
    const char* const end = name.data() + name.size();
    const auto [rest, fault] = std::from_chars(name.data(), end, number);
    if (fault == std::errc() && rest == end && number >= 1 && number <= table.columns.size())
        return number - 1;
    std::string names;
    for (const GridColumn& column : table.columns)
        names += (names.empty() ? "\"" : ", \"") + column.name + '"';
    throw TableError(names.empty() ? say("There is no column \"{}\"; there is none.", name)
                                   : say("There is no column \"{}\"; there is {}.", name, names));
}

std::optional<std::size_t> columnOfRole(const ListTable& table, ColumnRole role) {
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        if (roleOf(table.columns[i].name) == role)
            return i;
    return std::nullopt;
}

std::size_t resultColumn(const ListTable& table) {
    const auto first = [&](auto isWanted) -> std::optional<std::size_t> {
        const auto found = std::ranges::find_if(table.columns, isWanted);
        if (found == table.columns.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - table.columns.begin());
    };
    const auto isTotal = [](const GridColumn& column) {
        return isReckoned(column.kind) && roleOf(column.name) == ColumnRole::Total;
    };
    const auto hasTimes = [](const GridColumn& column) {
        return isReckoned(column.kind) && column.holdsTimes;
    };
    if (const auto total = first(isTotal))
        return *total;
    if (const auto times = first(hasTimes))
        return *times;
    const auto isDecimal = [](const auto& column) {
        return column.kind == ListColumnKind::Decimal;
    };
    if (const auto decimal = first(isDecimal))
        return *decimal;
    throw TableError(say("No column holds times; name the one to reckon with."));
}

void requireNumbers(const GridColumn& column) {
    if (!isReckoned(column.kind))
        throw TableError(say("The column \"{}\" has no numbers to reckon with: it is {}.",
                             column.name, translated(kindName(column.kind))));
}

std::string uniqueColumnName(const ListTable& table, std::string name) {
    const auto isTaken = [&](const std::string& asked) {
        return std::ranges::find(table.columns, asked, &GridColumn::name) != table.columns.end();
    };
    std::string unique = name;
    for (int i = 2; isTaken(unique); ++i)
        unique = name + ' ' + std::to_string(i);
    return unique;
}

ListTable withRows(const ListTable& table, const std::vector<std::size_t>& rows) {
    ListTable chosen = table;
    chosen.groups.clear();
    chosen.lines.clear();
    chosen.ids.clear();
    for (const std::size_t row : rows) {
        chosen.lines.push_back(table.lines[row]);
        chosen.ids.push_back(table.ids[row]);
    }
    for (std::size_t i = 0; i < chosen.columns.size(); ++i) {
        std::vector<GridCell> cells;
        cells.reserve(rows.size());
        for (const std::size_t row : rows)
            cells.push_back(table.columns[i].cells[row]);
        chosen.columns[i].cells = std::move(cells);
    }
    return chosen;
}

} // namespace kavela
