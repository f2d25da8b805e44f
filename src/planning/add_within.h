#pragma once

#include <cstdint>
#include <limits>

namespace kavela {

/// Adds to a sum, which stops at the ends of its range: a damaged file may hold any number.
inline void addWithin(std::int64_t& sum, std::int64_t value) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (value > 0 && sum > Limits::max() - value)
        sum = Limits::max();
    else if (value < 0 && sum < Limits::min() - value)
        sum = Limits::min();
    else
        sum += value;
}

} // namespace kavela
