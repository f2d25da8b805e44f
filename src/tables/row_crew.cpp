#include "tables/row_crew.h"

namespace kavela {

std::string textOfRole(const ListTable& table, ColumnRole role, std::size_t row) {
    const auto column = columnOfRole(table, role);
    return column ? table.columns[*column].cells[row].text : std::string();
}

std::optional<std::string> crewOfRow(const ListTable& table, std::size_t row) {
    const bool isWhole = columnOfRole(table, ColumnRole::Name).has_value();
    const bool hasSurname = columnOfRole(table, ColumnRole::Surname).has_value();
    if (!isWhole && !hasSurname)
        return std::nullopt;
    if (!hasSurname)
        return textOfRole(table, ColumnRole::Name, row);
    // Beside a surname the "name" is the given one.
    const bool hasGiven = columnOfRole(table, ColumnRole::GivenName).has_value();
    const std::string given =
        textOfRole(table, hasGiven ? ColumnRole::GivenName : ColumnRole::Name, row);
    const std::string surname = textOfRole(table, ColumnRole::Surname, row);
    return given.empty() ? surname : surname + ' ' + given;
}

} // namespace kavela
