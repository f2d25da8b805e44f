#include "desktop/cross/heats/shown_orders.h"

#include "splittaking/annotations/cross_heats.h"

#include <algorithm>
#include <map>
#include <set>

namespace kavela::desktop {

namespace {

ShownOrder shown(const rounddata030& heat, std::size_t record) {
    ShownOrder order;
    order.gate = heat.generals[record].gate;
    order.record = record;
    for (const std::string& name : heat.generals[record].order)
        order.boats.push_back({name, 0});
    return order;
}

/// Fills in the places won and lost from one order to the next.
void compare(std::vector<ShownOrder>& orders, const rounddata030& heat) {
    std::map<std::string, int> before;
    for (ShownOrder& order : orders) {
        if (order.isReplaced)
            continue;
        int place = 0;
        std::set<std::string> seen;
        for (ShownBoat& boat : order.boats) {
            const bool isOfHeat = std::ranges::count(heat.athletes, boat.name) > 0;
            if (!isOfHeat || !seen.insert(boat.name).second)
                continue;
            ++place;
            if (const auto known = before.find(boat.name); known != before.end())
                boat.change = known->second - place;
            before[boat.name] = place;
        }
    }
}

} // namespace

std::vector<ShownOrder> shownOrders(const rounddata030& heat, const crossinfodata030& course) {
    std::vector<ShownOrder> orders;
    for (std::size_t record = 0; record < heat.generals.size(); ++record)
        if (std::ranges::count(course.gates, heat.generals[record].gate) == 0) {
            orders.push_back(shown(heat, record));
            orders.back().isOnCourse = false;
        }
    for (const std::int64_t gate : course.gates) {
        const auto last = orderAt(heat, gate);
        for (std::size_t record = 0; last && record < *last; ++record)
            if (heat.generals[record].gate == gate) {
                orders.push_back(shown(heat, record));
                orders.back().isReplaced = true;
            }
        orders.push_back(last ? shown(heat, *last) : ShownOrder{gate, {}, {}});
    }
    compare(orders, heat);
    return orders;
}

} // namespace kavela::desktop
