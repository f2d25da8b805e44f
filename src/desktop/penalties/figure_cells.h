#pragma once

#include "common/interval.h"
#include "desktop/shell/tables/row_model.h"

#include <optional>
#include <string_view>

/// How the tables of penalties write their figures.
namespace kavela::desktop {

/// A sentence of the libraries, with the decimal sign of the system.
[[nodiscard]] QString shownWords(std::string_view words);

/// "7.4" for 0.074; a dash for none.
[[nodiscard]] Cell percentCell(std::optional<double> rate, Cell::Look look = Cell::Look::Plain);
/// "3.6–14.3", sorted by its low end.
[[nodiscard]] Cell percentRangeCell(const std::optional<Interval>& interval,
                                    Cell::Look look = Cell::Look::Plain);
[[nodiscard]] Cell countCell(std::optional<std::size_t> count, Cell::Look look = Cell::Look::Plain);
[[nodiscard]] Cell numberCell(double value, int decimals, Cell::Look look = Cell::Look::Plain);
/// A text that tells itself whole where the column cuts it.
[[nodiscard]] Cell textCell(const QString& text, Cell::Look look = Cell::Look::Plain);

} // namespace kavela::desktop
