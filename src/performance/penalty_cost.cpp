#include "performance/penalty_cost.h"

#include "common/number_text.h"
#include "common/text.h"
#include "performance/penalty_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kavela {

namespace {

/// Adds what the penalties of one run cost.
void addCosts(const FactStore& facts, std::size_t run, const GroupTotals& totals,
              const CourseGates& course, std::vector<PenaltyCost>& costs) {
    if (!facts.runs()[run].isComplete || !isKnownByGate(facts, facts.runs()[run]))
        return;
    for (const GatePassage& passage : passagesOf(facts, run))
        if (passage.seconds > 0)
            costs.push_back(penaltyCost(facts, totals, course, passage));
}

/// What a reader should know beside the bare ranks.
void tellDoubts(Why& why, const FactStore& facts, const GatePassage& penalty) {
    const RunRow& run = facts.runs()[penalty.run];
    if (penalty.isMissed())
        why.note(
            "A missed gate also saved paddling, which the rank without it does not take back.");
    const auto pens = facts.pensOf(run);
    const double byGate = std::accumulate(pens.begin(), pens.end(), 0.0);
    if (byGate != static_cast<double>(run.penalty))
        why.note(say("The total holds {} s of penalty, the gates {:.0f} s.", run.penalty, byGate));
}

} // namespace

GroupTotals::GroupTotals(const FactStore& facts, const RivalGroup& group) {
    for (const std::size_t run : group)
        if (facts.runs()[run].isComplete)
            m_totals.push_back(roundedToHundredths(facts.runs()[run].total));
    std::ranges::sort(m_totals);
}

int GroupTotals::rankOf(double total, Why* why) const {
    const auto smaller =
        std::ranges::lower_bound(m_totals, roundedToHundredths(total)) - m_totals.begin();
    const int rank = static_cast<int>(smaller) + 1;
    if (why) {
        why->result(penalty_rules::Rank, rank, std::to_string(rank));
        why->input("total", total);
        why->input("smaller totals", static_cast<double>(smaller));
        why->input("ranked runs", static_cast<double>(m_totals.size()));
    }
    return rank;
}

std::vector<PenaltyCost> penaltyCosts(const FactStore& facts, const PenaltyChoice& choice) {
    const ChosenRuns chosen(choice);
    std::vector<PenaltyCost> costs;
    for (const RivalGroup& group : groupsOf(facts)) {
        if (group.empty())
            continue;
        const GroupTotals totals(facts, group);
        const CourseGates course(facts, facts.fileOf(facts.runs()[group.front()]));
        for (const std::size_t run : group)
            if (chosen.has(facts, facts.runs()[run]))
                addCosts(facts, run, totals, course, costs);
    }
    std::ranges::stable_sort(costs, {}, &PenaltyCost::run);
    return costs;
}

Place placeOf(const FactStore& facts, const PenaltyCost& cost) {
    constexpr std::int32_t Ticks = 90000; // divides the frames of every usual film
    constexpr std::uint32_t Valid = 1;
    const RunRow& run = facts.runs()[cost.run];
    Place place = placeOf(facts, GatePassage{cost.run, cost.gate, cost.seconds});
    if (!cost.section)
        return place;
    const auto sections = facts.sectionsOf(run);
    double begin = NotKnown;
    if (*cost.section == 1)
        begin = run.start;
    else if (*cost.section - 2 < sections.size())
        begin = sections[*cost.section - 2].end;
    if (std::isfinite(begin))
        place.moment = CMTime{std::llround(begin * Ticks), Ticks, Valid, 0};
    else
        place.split = cost.section;
    return place;
}

PenaltyCost penaltyCost(const FactStore& facts, const GroupTotals& totals,
                        const CourseGates& course, const GatePassage& penalty, Why* why) {
    const double total = facts.runs()[penalty.run].total;
    PenaltyCost cost{.run = penalty.run,
                     .gate = penalty.gate,
                     .section = course.sectionOf(penalty.gate),
                     .seconds = penalty.seconds,
                     .rank = totals.rankOf(total, why ? why->part() : nullptr),
                     .without = 0,
                     .of = totals.size()};
    cost.without =
        totals.rankOf(total - static_cast<double>(penalty.seconds), why ? why->part() : nullptr);
    if (why) {
        why->result(penalty_rules::Cost, cost.places(),
                    fmt::format("{} {}", cost.places(), cost.places() == 1 ? "place" : "places"));
        why->input("seconds", static_cast<double>(penalty.seconds), placeOf(facts, penalty));
        why->input("rank", cost.rank);
        why->input("rank without", cost.without);
        tellDoubts(*why, facts, penalty);
    }
    return cost;
}

} // namespace kavela
