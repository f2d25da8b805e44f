#include "splittaking/annotations/cross_results.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>

namespace kavela {

namespace {

using Names = std::vector<std::string>;

constexpr std::size_t BoatsThatGoOn = 2;

std::optional<std::size_t> placeIn(const Names& names, const std::string& name) {
    const auto found = std::ranges::find(names, name);
    if (found == names.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - names.begin());
}

/// An order without strangers and repetitions.
Names cleanOrder(const rounddata030& heat, const Names& order) {
    Names clean;
    for (const std::string& name : order)
        if (placeIn(heat.athletes, name) && !placeIn(clean, name))
            clean.push_back(name);
    return clean;
}

const generaldata030* lastOrderAt(const rounddata030& heat, std::int64_t gate) {
    const auto last = std::find_if(heat.generals.rbegin(), heat.generals.rend(),
                                   [&](const generaldata030& general) {
                                       return general.gate == gate && !general.order.empty();
                                   });
    return last == heat.generals.rend() ? nullptr : &*last;
}

/// The orders of a heat as the boats pass.
std::vector<Names> ordersOf(const rounddata030& heat, const crossinfodata030& course) {
    std::vector<Names> orders;
    const std::set<std::int64_t> gates(course.gates.begin(), course.gates.end());
    for (const generaldata030& general : heat.generals)
        if (!gates.contains(general.gate) && !general.order.empty())
            orders.push_back(cleanOrder(heat, general.order));
    for (const std::int64_t gate : course.gates)
        if (const generaldata030* general = lastOrderAt(heat, gate))
            orders.push_back(cleanOrder(heat, general->order));
    return orders;
}

HeatPlace heatPlaceOf(const std::string& athlete, std::span<const Names> orders) {
    HeatPlace result;
    result.athlete = athlete;
    std::optional<std::size_t> before;
    for (const Names& order : orders) {
        const auto index = placeIn(order, athlete);
        if (!index)
            continue;
        const std::size_t place = *index + 1;
        if (!before)
            result.start = place;
        else if (place < *before)
            result.gained += *before - place;
        else
            result.lost += place - *before;
        before = place;
    }
    if (!orders.empty() && placeIn(orders.back(), athlete))
        result.finish = before;
    return result;
}

std::size_t finishRank(const HeatPlace& place) {
    return place.finish.value_or(std::numeric_limits<std::size_t>::max());
}

bool sharesBoat(const std::set<std::string>& boats, const rounddata030& heat) {
    return std::ranges::any_of(heat.athletes,
                               [&](const std::string& name) { return boats.contains(name); });
}

std::vector<RoundResult> roundsOf(const crossdata030& cross) {
    std::vector<RoundResult> rounds;
    std::set<std::string> boats;
    for (std::size_t k = 0; k < cross.eliphase.size(); ++k) {
        const rounddata030& heat = cross.eliphase[k];
        if (rounds.empty() || sharesBoat(boats, heat)) {
            rounds.emplace_back();
            boats.clear();
        }
        boats.insert(heat.athletes.begin(), heat.athletes.end());
        rounds.back().heats.push_back(resultOf(heat, cross.crossinfo));
        rounds.back().heats.back().heat = k;
    }
    return rounds;
}

std::set<std::string> boatsOf(const RoundResult& round) {
    std::set<std::string> boats;
    for (const HeatResult& heat : round.heats)
        for (const HeatPlace& place : heat.places)
            boats.insert(place.athlete);
    return boats;
}

/// Who goes on; `next` is null in the last round.
void decide(RoundResult& round, const RoundResult* next) {
    const std::set<std::string> ahead = next != nullptr ? boatsOf(*next) : std::set<std::string>{};
    for (HeatResult& heat : round.heats)
        for (HeatPlace& place : heat.places)
            place.goesOn = next != nullptr ? ahead.contains(place.athlete)
                                           : !round.isFinal && heat.isFinished &&
                                                 finishRank(place) <= BoatsThatGoOn;
}

std::optional<double> rate(std::size_t part, std::size_t whole) {
    if (whole == 0)
        return std::nullopt;
    return static_cast<double>(part) / static_cast<double>(whole);
}

/// Collects records, one per name, in the order in which names are first asked for.
class Records {
public:
    AttackRecord& of(const std::string& name) {
        const auto [place, isNew] = m_places.try_emplace(name, m_records.size());
        if (isNew)
            m_records.emplace_back().athlete = name;
        return m_records[place->second];
    }

    std::vector<AttackRecord> take() && {
        std::erase_if(m_records, [](const AttackRecord& record) {
            return record.attacks == 0 && record.defences == 0;
        });
        return std::move(m_records);
    }

private:
    std::map<std::string, std::size_t> m_places;
    std::vector<AttackRecord> m_records;
};

} // namespace

HeatResult resultOf(const rounddata030& heat, const crossinfodata030& course) {
    HeatResult result;
    const std::vector<Names> orders = ordersOf(heat, course);
    for (const std::string& athlete : cleanOrder(heat, heat.athletes))
        result.places.push_back(heatPlaceOf(athlete, orders));
    std::ranges::stable_sort(result.places, {}, finishRank);
    for (const std::int64_t gate : course.gates)
        if (lastOrderAt(heat, gate) == nullptr)
            result.gatesWithoutOrder.push_back(gate);
    result.isFinished = !orders.empty() &&
                        (course.gates.empty() || lastOrderAt(heat, course.gates.back()) != nullptr);
    result.isComplete = result.isFinished && orders.back().size() == result.places.size();
    return result;
}

std::vector<RoundResult> crossResults(const crossdata030& cross) {
    std::vector<RoundResult> rounds = roundsOf(cross);
    for (std::size_t k = 0; k < rounds.size(); ++k) {
        const std::size_t heats = rounds[k].heats.size();
        const bool isLast = k + 1 == rounds.size();
        rounds[k].isFinal =
            isLast && (heats == 1 || (k > 0 && rounds[k - 1].heats.size() == heats));
        decide(rounds[k], isLast ? nullptr : &rounds[k + 1]);
    }
    return rounds;
}

std::optional<double> AttackRecord::attackRate() const {
    return rate(successes, attacks);
}

std::optional<double> AttackRecord::defenceRate() const {
    return rate(held, defences);
}

std::vector<AttackRecord> attackRecords(std::span<const rounddata030> heats) {
    Records records;
    for (const rounddata030& heat : heats)
        for (const std::string& athlete : heat.athletes)
            records.of(athlete);
    for (const rounddata030& heat : heats)
        for (const actiondata030& action : heat.actions) {
            AttackRecord& attacker = records.of(action.attacker);
            ++attacker.attacks;
            attacker.successes += action.success ? 1 : 0;
            for (const std::string& name : action.defenders) {
                AttackRecord& defender = records.of(name);
                ++defender.defences;
                defender.held += action.success ? 0 : 1;
            }
        }
    return std::move(records).take();
}

std::vector<AttackPlace> attackPlaces(std::span<const rounddata030> heats) {
    std::map<std::pair<std::string, std::string>, AttackPlace> places;
    for (const rounddata030& heat : heats)
        for (const actiondata030& action : heat.actions) {
            AttackPlace& place = places[{action.side, action.place}];
            place.side = action.side;
            place.place = action.place;
            ++place.attacks;
            place.successes += action.success ? 1 : 0;
        }
    std::vector<AttackPlace> sorted;
    for (auto& [where, place] : places)
        sorted.push_back(std::move(place));
    std::ranges::stable_sort(sorted, std::ranges::greater{}, &AttackPlace::attacks);
    return sorted;
}

} // namespace kavela
