#include "performance/loss_ways.h"

#include "analysis/cell_text.h"
#include "performance/loss_rules.h"
#include "performance/loss_sides.h"
#include "splitdata/run_totals.h"

#include <algorithm>

namespace kavela {

namespace {

/// What an option is called; options that a damaged file leaves out have a number.
std::string optionName(const FactStore& facts, const WayRow& way, std::size_t option) {
    const auto names = facts.optionsOf(way);
    return option < names.size() ? std::string(facts.text(names[option]))
                                 : "option " + std::to_string(option + 1);
}

} // namespace

std::vector<WayCost> wayCostsOf(const FactStore& facts, std::span<const std::size_t> runs) {
    std::vector<WayCost> costs;
    for (const std::size_t run : runs) {
        const auto ways = facts.waysOf(facts.runs()[run]);
        for (std::size_t entry = 0; entry < ways.size(); ++entry)
            costs.push_back({run, entry, std::string(facts.text(ways[entry].title)),
                             wayCost(facts, run, entry)});
    }
    return costs;
}

std::optional<double> wayCost(const FactStore& facts, std::size_t run, std::size_t entry,
                              Why* why) {
    const WayRow& way = facts.waysOf(facts.runs()[run])[entry];
    const auto times = facts.timesOf(way);
    if (way.chosen < 0 || static_cast<std::size_t>(way.chosen) >= times.size())
        return std::nullopt;
    const double chosen = times[static_cast<std::size_t>(way.chosen)];
    if (!isTakenTime(chosen))
        return std::nullopt;
    double best = chosen;
    Place place = lossPlace(facts, run);
    place.entry = entry;
    for (std::size_t option = 0; option < times.size(); ++option) {
        if (!isTakenTime(times[option]))
            continue;
        best = std::min(best, times[option]);
        if (why)
            why->input(optionName(facts, way, option), times[option], place);
    }
    if (why)
        why->result(ruleOf(LossRule::WayCost), chosen - best, signedHundredths(chosen - best));
    return chosen - best;
}

} // namespace kavela
