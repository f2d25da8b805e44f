#include "splittaking/annotations/cross_heats.h"

#include "common/text.h"

#include <algorithm>
#include <set>

namespace kavela {

namespace {

using Names = std::vector<std::string>;

bool contains(const Names& names, const std::string& name) {
    return std::ranges::find(names, name) != names.end();
}

std::optional<std::string> namedTwice(const Names& names) {
    std::set<std::string_view> seen;
    for (const std::string& name : names)
        if (!seen.insert(name).second)
            return name;
    return std::nullopt;
}

std::optional<std::string> faultOfOrder(const rounddata030& heat, const Names& order) {
    for (const std::string& name : order)
        if (!contains(heat.athletes, name))
            return say("{} is not in this heat.", name);
    if (const auto name = namedTwice(order))
        return say("{} stands twice in the order.", *name);
    return std::nullopt;
}

std::optional<std::string> faultOfAction(const rounddata030& heat, const actiondata030& action) {
    Names boats = action.defenders;
    boats.push_back(action.attacker);
    for (const std::string& name : boats)
        if (!contains(heat.athletes, name))
            return name.empty() ? say("An unnamed boat is not in this heat.")
                                : say("{} is not in this heat.", name);
    if (contains(action.defenders, action.attacker))
        return say("{} cannot attack and defend at once.", action.attacker);
    if (const auto name = namedTwice(action.defenders))
        return say("{} stands twice among the defenders.", *name);
    return std::nullopt;
}

void refuse(const std::optional<std::string>& fault) {
    if (fault)
        throw std::invalid_argument(*fault);
}

/// Place of a gate on the course, from 0; behind the last one when it is not there.
std::size_t placeOnCourse(const crossinfodata030& course, std::int64_t gate) {
    return static_cast<std::size_t>(std::ranges::find(course.gates, gate) - course.gates.begin());
}

std::size_t courseGate(const crossinfodata030& course, std::int64_t gate) {
    const std::size_t place = placeOnCourse(course, gate);
    if (place == course.gates.size())
        throw std::out_of_range("gate " + std::to_string(gate) + " is not on the cross course");
    return place;
}

void rename(Names& names, const std::string& from, const std::string& to) {
    std::ranges::replace(names, from, to);
}

std::size_t insertAction(rounddata030& heat, actiondata030 action) {
    const CMTime moment = action.time.empty() ? NotMarked : action.time.front();
    const auto next = std::ranges::find_if(heat.actions, [&](const actiondata030& other) {
        return isTaken(moment) && !other.time.empty() && isTaken(other.time.front()) &&
               orderOf(other.time.front(), moment) > 0;
    });
    const auto inserted = heat.actions.insert(next, std::move(action)); // which moves the list
    return static_cast<std::size_t>(inserted - heat.actions.begin());
}

} // namespace

std::size_t addHeat(crossdata030& cross, std::string videoname, Names athletes) {
    if (athletes.empty() || athletes.size() > BoatsInHeat)
        throw std::invalid_argument(say("A heat has one to four boats."));
    if (const auto name = namedTwice(athletes))
        throw std::invalid_argument(say("{} stands twice in the heat.", *name));
    cross.eliphase.push_back({std::move(videoname), std::move(athletes), {}, {}});
    return cross.eliphase.size() - 1;
}

void removeHeat(crossdata030& cross, std::size_t heat) {
    (void)entryOf(cross.eliphase, heat, "heat");
    eraseEntry(cross.eliphase, heat);
}

void renameBoat(rounddata030& heat, std::size_t boat, std::string name) {
    const std::string before = entryOf(heat.athletes, boat, "boat");
    if (name != before && contains(heat.athletes, name))
        throw std::invalid_argument(say("{} is already in this heat.", name));
    heat.athletes[boat] = name;
    for (generaldata030& general : heat.generals)
        rename(general.order, before, name);
    for (actiondata030& action : heat.actions) {
        rename(action.defenders, before, name);
        if (action.attacker == before)
            action.attacker = name;
    }
}

std::optional<std::size_t> orderAt(const rounddata030& heat, std::int64_t gate) {
    const auto last =
        std::find_if(heat.generals.rbegin(), heat.generals.rend(),
                     [&](const generaldata030& general) { return general.gate == gate; });
    if (last == heat.generals.rend())
        return std::nullopt;
    return static_cast<std::size_t>(heat.generals.rend() - last) - 1;
}

void setOrder(rounddata030& heat, const crossinfodata030& course, std::int64_t gate, Names order,
              const CMTime& moment) {
    const std::size_t place = courseGate(course, gate);
    refuse(faultOfOrder(heat, order));
    if (const auto known = orderAt(heat, gate)) {
        heat.generals[*known].order = std::move(order);
        heat.generals[*known].time = moment;
        return;
    }
    const auto next = std::ranges::find_if(heat.generals, [&](const generaldata030& other) {
        return placeOnCourse(course, other.gate) > place;
    });
    heat.generals.insert(
        next, {moment, gate, static_cast<std::int64_t>(place) + 1, std::move(order), ""});
}

void moveOrder(rounddata030& heat, std::size_t place, const CMTime& moment) {
    entryOf(heat.generals, place, "order").time = moment;
}

void removeOrder(rounddata030& heat, std::size_t place) {
    (void)entryOf(heat.generals, place, "order");
    eraseEntry(heat.generals, place);
}

Names likelyOrder(const rounddata030& heat, const crossinfodata030& course, std::int64_t gate) {
    for (std::size_t place = courseGate(course, gate); place > 0; --place) {
        const auto known = orderAt(heat, course.gates[place - 1]);
        if (known && !heat.generals[*known].order.empty())
            return heat.generals[*known].order;
    }
    return heat.athletes;
}

std::size_t addAction(rounddata030& heat, actiondata030 action) {
    refuse(faultOfAction(heat, action));
    return insertAction(heat, std::move(action));
}

std::size_t changeAction(rounddata030& heat, std::size_t place, actiondata030 action) {
    (void)entryOf(heat.actions, place, "attack");
    refuse(faultOfAction(heat, action));
    eraseEntry(heat.actions, place);
    return insertAction(heat, std::move(action));
}

void removeAction(rounddata030& heat, std::size_t place) {
    (void)entryOf(heat.actions, place, "attack");
    eraseEntry(heat.actions, place);
}

Names faultsOf(const rounddata030& heat, const crossinfodata030& course) {
    Names faults;
    if (heat.athletes.size() > BoatsInHeat)
        faults.push_back(say("There are more than four boats in this heat."));
    if (const auto name = namedTwice(heat.athletes))
        faults.push_back(say("{} stands twice in the heat.", *name));
    for (const generaldata030& general : heat.generals) {
        if (placeOnCourse(course, general.gate) == course.gates.size())
            faults.push_back(say("Gate {}: it is not on the cross course.", general.gate));
        if (const auto fault = faultOfOrder(heat, general.order))
            faults.push_back(say("Gate {}: {}", general.gate, *fault));
    }
    for (std::size_t k = 0; k < heat.actions.size(); ++k)
        if (const auto fault = faultOfAction(heat, heat.actions[k]))
            faults.push_back("Attack " + std::to_string(k + 1) + ": " + *fault);
    return faults;
}

} // namespace kavela
