#pragma once

#include <algorithm>
#include <cstddef>

namespace kavela::desktop {

/// Weeks that stand one after the other in a season, chosen together: from the one that was chosen
/// first to the one that the choice was extended to.
struct WeekBlock {
    std::size_t anchor = 0;
    std::size_t current = 0; ///< the one that the week view shows

    [[nodiscard]] std::size_t first() const { return std::min(anchor, current); }
    [[nodiscard]] std::size_t last() const { return std::max(anchor, current); }
    [[nodiscard]] std::size_t count() const { return last() - first() + 1; }
    [[nodiscard]] bool holds(std::size_t week) const { return week >= first() && week <= last(); }

    friend bool operator==(const WeekBlock&, const WeekBlock&) = default;
};

} // namespace kavela::desktop
