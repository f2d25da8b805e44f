#pragma once

#include "splitdata/cross_records.h"

#include <optional>
#include <string>
#include <vector>

/// The orders of a heat as a coach sees them beside each other.
namespace kavela::desktop {

struct ShownBoat {
    std::string name;
    int change = 0; ///< places won since it was seen last; below 0 places lost
};

/// One gate of the course, or an order that has no gate of its own there.
struct ShownOrder {
    std::int64_t gate = 0;
    std::optional<std::size_t> record; ///< in `generals`; nothing as long as none was taken
    std::vector<ShownBoat> boats;      ///< the first boat first, as the file has them
    bool isOnCourse = true;
    bool isReplaced = false; ///< by a later order at the same gate: it does not count
};

/// The order at each gate of the course. Those at other gates stand before them as the file has
/// them, those that a later one replaces right before it. Places won and lost count among the boats
/// of the heat, as in the results.
[[nodiscard]] std::vector<ShownOrder> shownOrders(const rounddata030& heat,
                                                  const crossinfodata030& course);

} // namespace kavela::desktop
