#pragma once

#include "tables/table.h"

#include <cstddef>
#include <string>

namespace kavela {

/// Shows the numbers of a column of a list with as many decimals each as the one that has most, as
/// a results list is printed: a spreadsheet that shows 84.90 hands 84.9 on. Only noughts are added;
/// whole numbers, derived columns and what is no number stand as they are.
class ShownDecimals {
public:
    ShownDecimals() = default;
    explicit ShownDecimals(const GridColumn& column);

    [[nodiscard]] std::string textOf(const GridCell& cell) const;

private:
    std::size_t m_most = 0; ///< 0: as they stand
    char m_sign = '.';      ///< of the column: a point, or a comma
};

} // namespace kavela
