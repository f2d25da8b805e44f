#include "performance/head_to_head.h"

#include "common/number_text.h"
#include "performance/season_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace kavela {

namespace {

/// The best run of a boat in each phase, by phase.
using BestRuns = std::map<std::size_t, const SeasonRun*>;

void keepBetter(BestRuns& best, const SeasonRun& run) {
    const SeasonRun*& kept = best[run.phase];
    if (!kept || run.total < kept->total)
        kept = &run;
}

double wonIn(double own, double other) {
    constexpr double Tie = 0.5;
    const double ownShown = roundedToHundredths(own);
    const double otherShown = roundedToHundredths(other);
    if (ownShown == otherShown)
        return Tie;
    return ownShown < otherShown ? 1 : 0;
}

/// Compares the phases that both have. `tell` is called with each of them.
template <class Tell>
std::optional<HeadToHead> compared(const BestRuns& own, const BestRuns& others, std::size_t versus,
                                   const Tell& tell) {
    HeadToHead head;
    head.versus = versus;
    std::vector<double> gaps;
    for (const auto& [phase, run] : others) {
        const auto met = own.find(phase);
        if (met == own.end())
            continue;
        head.won += wonIn(met->second->total, run->total);
        gaps.push_back(100 * std::log(met->second->total / run->total));
        tell(*met->second, *run);
    }
    head.met = gaps.size();
    if (head.met == 0)
        return std::nullopt;
    head.interval = rateInterval(head.won, head.met);
    head.gap = meanOf(gaps);
    return head;
}

} // namespace

std::vector<HeadToHead> headToHeads(const SeasonData& data, std::size_t boat) {
    BestRuns own;
    for (const SeasonRun& run : data.runs)
        if (run.boat == boat)
            keepBetter(own, run);
    std::vector<BestRuns> others(data.boats.size());
    for (const SeasonRun& run : data.runs)
        if (run.boat != boat && own.contains(run.phase))
            keepBetter(others[run.boat], run);
    std::vector<HeadToHead> heads;
    for (std::size_t i = 0; i < others.size(); ++i)
        if (const auto head = compared(own, others[i], i, [](const auto&, const auto&) {}))
            heads.push_back(*head);
    std::ranges::stable_sort(heads, {}, [&](const HeadToHead& head) {
        const bool isMember = data.boats[head.versus].member.has_value();
        return std::pair(!isMember, isMember ? 0 : -static_cast<std::ptrdiff_t>(head.met));
    });
    return heads;
}

std::optional<HeadToHead> headToHead(const SeasonData& data, const FactStore& facts,
                                     std::size_t boat, std::size_t versus, HeadFigure figure,
                                     Why* why) {
    BestRuns own;
    BestRuns others;
    for (const SeasonRun& run : data.runs) {
        if (run.boat == boat)
            keepBetter(own, run);
        else if (run.boat == versus)
            keepBetter(others, run);
    }
    const auto tell = [&](const SeasonRun& mine, const SeasonRun& theirs) {
        if (!why)
            return;
        const RacePhase& phase = data.phases[mine.phase];
        const std::string name = fmt::format("{} {} {}", phase.year, phase.location, phase.phase);
        why->input(name, mine.total, seasonPlace(facts, mine.run));
        why->input(data.boats[versus].name, theirs.total, seasonPlace(facts, theirs.run));
    };
    const auto head = compared(own, others, versus, tell);
    if (!head || !why)
        return head;
    if (figure == HeadFigure::Gap) {
        if (head->gap.interval)
            why->uncertain(*head->gap.interval, "90 %, Student's t");
        why->result(ruleOf(SeasonRule::HeadGap), head->gap.mean,
                    fmt::format("{:+.1f} %", head->gap.mean));
    } else {
        why->uncertain(head->interval, "90 %, Wilson");
        why->result(ruleOf(SeasonRule::Won), head->rate(),
                    fmt::format("{} of {}", shortestText(head->won), head->met));
    }
    return head;
}

} // namespace kavela
