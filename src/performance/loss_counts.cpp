#include "performance/loss_counts.h"

#include "common/number_text.h"
#include "performance/loss_rules.h"
#include "performance/loss_sides.h"
#include "splitdata/frame_step.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kavela {

namespace {

void tellCount(LossRule rule, std::int64_t count, Why* why) {
    if (why)
        why->result(ruleOf(rule), static_cast<double>(count), std::to_string(count));
}

} // namespace

std::optional<double> lossTotal(const FactStore& facts, std::size_t run, Why* why) {
    const RunRow& row = facts.runs()[run];
    if (!row.isComplete)
        return std::nullopt;
    if (why) {
        why->input(row.isOfficial ? "official time" : "time without penalties", row.paddling,
                   lossPlace(facts, run), row.isOfficial ? 0 : markUncertainty(facts, run),
                   HalfFrameTwice);
        why->input("penalties", static_cast<double>(row.penalty), lossPlace(facts, run));
        why->result(ruleOf(LossRule::RunTotal), row.total, hundredthsText(row.total));
    }
    return row.total;
}

std::optional<int> placeInGroup(const FactStore& facts, const RivalGroup& group, std::size_t run,
                                Why* why) {
    const auto ranks = ranksOf(facts, {group});
    const auto place = ranks[run];
    if (!place || !why)
        return place;
    why->input("own", facts.runs()[run].total, lossPlace(facts, run));
    std::vector<std::size_t> inFront;
    for (const std::size_t other : group)
        if (ranks[other] && *ranks[other] < *place)
            inFront.push_back(other);
    std::ranges::stable_sort(inFront, {}, [&](std::size_t other) { return *ranks[other]; });
    for (const std::size_t other : inFront)
        why->input(std::string(facts.text(facts.runs()[other].crew)), facts.runs()[other].total,
                   lossPlace(facts, other));
    tellCount(LossRule::Place, *place, why);
    return place;
}

std::optional<std::int64_t> stretchStrokes(const FactStore& facts, std::size_t run,
                                           std::size_t first, std::size_t last, Why* why) {
    std::int64_t all = 0;
    std::int64_t inside = 0;
    const auto sections = facts.sectionsOf(facts.runs()[run]);
    for (std::size_t k = 1; k <= sections.size(); ++k) {
        const SectionRow& row = sections[k - 1];
        const std::int64_t strokes = row.left + row.right + row.other;
        all += strokes;
        if (k < first || k > last)
            continue;
        inside += strokes;
        if (why)
            why->input("strokes in section " + std::to_string(k), static_cast<double>(strokes),
                       lossPlace(facts, run, k));
    }
    if (all == 0)
        return std::nullopt;
    tellCount(LossRule::Strokes, inside, why);
    return inside;
}

std::int64_t stretchPenalties(const FactStore& facts, std::size_t run, std::size_t first,
                              std::size_t last, Why* why) {
    std::int64_t seconds = 0;
    const auto sections = facts.sectionsOf(facts.runs()[run]);
    for (std::size_t k = first; k <= std::min(last, sections.size()); ++k) {
        seconds += sections[k - 1].pen;
        if (why)
            why->input("section " + std::to_string(k), sections[k - 1].pen,
                       lossPlace(facts, run, k));
    }
    tellCount(LossRule::SectionPenalty, seconds, why);
    return seconds;
}

} // namespace kavela
