#include "common/percentile.h"

#include <cmath>

namespace kavela {

double percentile(std::span<const double> ascending, double fraction) {
    const double position = static_cast<double>(ascending.size() - 1) * fraction;
    const auto below = static_cast<std::size_t>(std::floor(position));
    if (below + 1 >= ascending.size())
        return ascending.back();
    const double share = position - std::floor(position);
    return ascending[below] + share * (ascending[below + 1] - ascending[below]);
}

} // namespace kavela
