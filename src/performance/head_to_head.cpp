#include "performance/head_to_head.h"

#include "common/number_text.h"
#include "common/text.h"
#include "performance/season_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela {

namespace {

/// The runs of a boat that count: the best of each phase, by phase.
using BestRuns = std::vector<const SeasonRun*>;

void keepBest(BestRuns& runs) {
    std::ranges::stable_sort(
        runs, {}, [](const SeasonRun* run) { return std::pair(run->phase, run->total); });
    const auto rest = std::ranges::unique(runs, {}, &SeasonRun::phase);
    runs.erase(rest.begin(), rest.end());
}

BestRuns bestRunsOf(const SeasonData& data, std::size_t boat) {
    BestRuns runs;
    for (const SeasonRun& run : data.runs)
        if (run.boat == boat)
            runs.push_back(&run);
    keepBest(runs);
    return runs;
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
    for (auto mine = own.begin(), theirs = others.begin();
         mine != own.end() && theirs != others.end();) {
        const SeasonRun& run = **mine;
        const SeasonRun& rival = **theirs;
        if (run.phase == rival.phase) {
            head.won += wonIn(run.total, rival.total);
            gaps.push_back(100 * std::log(run.total / rival.total));
            tell(run, rival);
        }
        mine += run.phase <= rival.phase ? 1 : 0;
        theirs += rival.phase <= run.phase ? 1 : 0;
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
    const BestRuns own = bestRunsOf(data, boat);
    std::vector<bool> isMet(data.phases.size());
    for (const SeasonRun* run : own)
        isMet[run->phase] = true;
    std::vector<BestRuns> others(data.boats.size());
    for (const SeasonRun& run : data.runs)
        if (run.boat != boat && isMet[run.phase])
            others[run.boat].push_back(&run);
    std::ranges::for_each(others, keepBest);
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
    if (boat == versus)
        return std::nullopt;
    const BestRuns own = bestRunsOf(data, boat);
    const BestRuns others = bestRunsOf(data, versus);
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
                    say("{} of {}", shortestText(head->won), head->met));
    }
    return head;
}

} // namespace kavela
