#pragma once

#include <span>

namespace kavela {

/// The percentile of ascending values for a fraction from 0 to 1, by linear interpolation between
/// closest ranks: Hyndman & Fan (1996), definition 7, a spreadsheet's inclusive percentile.
/// `ascending` must not be empty.
[[nodiscard]] double percentile(std::span<const double> ascending, double fraction);

} // namespace kavela
