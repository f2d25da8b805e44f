#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kavela {

/// Parts as they are shown, in hundredths, so that they add up to the shown total: each is rounded
/// down, and one hundredth more goes to those with the largest remainders, the first of equals
/// first, until `total` is met (largest remainders). `total` is the sum of the parts up to
/// rounding; a difference that rounding cannot explain stays in the total.
[[nodiscard]] std::vector<std::int64_t> shownParts(std::span<const double> parts, double total);

} // namespace kavela
