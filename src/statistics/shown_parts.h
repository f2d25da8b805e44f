#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kavela {

/// Parts as they are shown, in hundredths, so that they add up to the shown total: each is rounded
/// down, and one hundredth more goes to those with the largest remainders, the first of equals
/// first, until `total` is met (largest remainders). Parts may be below 0. `total` is the sum of
/// the parts up to rounding, shown as hundredthsText() does it; where it is more than a hundredth
/// away the parts add up to their own sum, and the difference stays in the total.
[[nodiscard]] std::vector<std::int64_t> shownParts(std::span<const double> parts, double total);

} // namespace kavela
