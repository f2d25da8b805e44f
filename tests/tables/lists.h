#pragma once

#include "tables/list_reader.h"
#include "tables/table_reading.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::test {

inline ListTable tableIn(std::string_view text) {
    return tableOf(readList(text));
}

/// The texts of a column, one for each row.
inline std::vector<std::string> textsOf(const ListTable& table, std::string_view column) {
    std::vector<std::string> texts;
    for (const GridCell& cell : table.columns.at(columnPlace(table, column)).cells)
        texts.push_back(cell.text);
    return texts;
}

/// The numbers of a column, one for each row.
inline std::vector<std::optional<double>> numbersOf(const ListTable& table,
                                                    std::string_view column) {
    std::vector<std::optional<double>> numbers;
    for (const GridCell& cell : table.columns.at(columnPlace(table, column)).cells)
        numbers.push_back(cell.number);
    return numbers;
}

} // namespace kavela::test
