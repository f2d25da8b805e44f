#include "performance/table_colours.h"

#include <algorithm>

namespace kavela {

std::vector<Band> tableBands(const GridColumn& column) {
    requireNumbers(column);
    Column numbers;
    for (std::size_t row = 0; row < column.cells.size(); ++row)
        if (const auto number = column.counted(row))
            numbers.push_back(*number);
    // A section of 0 s was not timed, but a gap of 0 s is the winner's: such columns are moved
    // above 0, which moves the tenths with them.
    const double shift =
        column.holdsTimes || numbers.empty() ? 0 : 1 - *std::ranges::min_element(numbers);
    for (double& number : numbers)
        number += shift;
    const ColumnScale scale(numbers, 1, 1);
    std::vector<Band> bands;
    for (std::size_t row = 0; row < column.cells.size(); ++row) {
        const auto number = column.counted(row);
        bands.push_back(number ? scale.bandOf(*number + shift) : Band::Clear);
    }
    return bands;
}

} // namespace kavela
