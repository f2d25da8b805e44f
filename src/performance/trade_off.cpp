#include "performance/trade_off.h"

#include "common/percentile.h"
#include "facts/groups.h"
#include "performance/penalty_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

namespace kavela {

namespace {

double medianOf(const FactStore& facts, const RivalGroup& runs, double RunRow::*time) {
    std::vector<double> times;
    for (const std::size_t run : runs)
        times.push_back(facts.runs()[run].*time);
    std::ranges::sort(times);
    return percentile(times, 0.5);
}

/// The runs of a group that are whole and known by gate, the fastest paddler first.
RivalGroup divisibleRuns(const FactStore& facts, const RivalGroup& group) {
    RivalGroup runs;
    for (const std::size_t run : group)
        if (facts.runs()[run].isComplete && isKnownByGate(facts, facts.runs()[run]))
            runs.push_back(run);
    std::ranges::stable_sort(runs, {}, [&](std::size_t run) { return facts.runs()[run].paddling; });
    return runs;
}

PacedRun pacedRun(const FactStore& facts, std::size_t run, double paddling, double total) {
    const RunRow& row = facts.runs()[run];
    PacedRun paced{.run = run,
                   .touches = 0,
                   .missed = 0,
                   .paddling = 100 * row.paddling / paddling,
                   .total = 100 * row.total / total};
    for (const GatePassage& passage : passagesOf(facts, run)) {
        paced.touches += passage.isTouch();
        paced.missed += passage.isMissed();
    }
    return paced;
}

/// The thirds are those of the whole group, whichever of its runs are asked for.
void addGroup(const FactStore& facts, const RivalGroup& runs, const ChosenRuns& chosen,
              PacedRuns& paced) {
    const double paddling = medianOf(facts, runs, &RunRow::paddling);
    const double total = medianOf(facts, runs, &RunRow::total);
    paced.medians.push_back(paddling);
    for (std::size_t i = 0; i < runs.size(); ++i)
        if (chosen.has(facts, facts.runs()[runs[i]]))
            paced.thirds[paced.thirds.size() * i / runs.size()].push_back(
                pacedRun(facts, runs[i], paddling, total));
}

template <class Value>
Value sumOf(const std::vector<PacedRun>& runs, Value PacedRun::*value) {
    return std::transform_reduce(runs.begin(), runs.end(), Value{}, std::plus(),
                                 [&](const PacedRun& run) { return run.*value; });
}

double perRun(const std::vector<PacedRun>& runs, double sum) {
    return sum / static_cast<double>(runs.size());
}

Place placeOf(const FactStore& facts, const PacedRun& paced) {
    const RunRow& run = facts.runs()[paced.run];
    Place place;
    place.file = facts.pathOf(run);
    place.run = run.number;
    return place;
}

double valueOf(const PacedRun& run, ThirdFigure figure) {
    switch (figure) {
    case ThirdFigure::Touches:
        return static_cast<double>(run.touches);
    case ThirdFigure::Missed:
        return static_cast<double>(run.missed);
    case ThirdFigure::Paddling:
        return run.paddling;
    case ThirdFigure::Runs:
        return 1;
    case ThirdFigure::Total:
        break;
    }
    return run.total;
}

void tellRow(Why& why, const FactStore& facts, const std::vector<PacedRun>& runs,
             const TradeOffRow& row, ThirdFigure figure) {
    switch (figure) {
    case ThirdFigure::Touches:
        why.result(penalty_rules::Touches, row.touchesPerRun,
                   fmt::format("{:.2f}", row.touchesPerRun));
        why.uncertain(row.interval, "exact Poisson interval, 90 %");
        break;
    case ThirdFigure::Missed:
        why.result(penalty_rules::Missed, row.missedPerRun,
                   fmt::format("{:.2f}", row.missedPerRun));
        break;
    case ThirdFigure::Paddling:
        why.result(penalty_rules::Paddling, row.paddling, fmt::format("{:.1f} %", row.paddling));
        break;
    case ThirdFigure::Total:
        why.result(penalty_rules::Total, row.total, fmt::format("{:.1f} %", row.total));
        break;
    case ThirdFigure::Runs:
        why.result(penalty_rules::ThirdRuns, static_cast<double>(row.runs),
                   std::to_string(row.runs));
        break;
    }
    for (const PacedRun& run : runs)
        why.input(std::string(facts.text(facts.runs()[run.run].crew)), valueOf(run, figure),
                  placeOf(facts, run));
}

} // namespace

PacedRuns pacedRuns(const FactStore& facts, const PenaltyChoice& choice) {
    const ChosenRuns chosen(choice);
    PacedRuns paced;
    for (const RivalGroup& group : groupsOf(facts)) {
        const RivalGroup runs = divisibleRuns(facts, group);
        const bool isAskedFor = std::ranges::any_of(
            runs, [&](std::size_t run) { return chosen.has(facts, facts.runs()[run]); });
        if (isAskedFor && runs.size() >= LeastDivided)
            addGroup(facts, runs, chosen, paced);
    }
    return paced;
}

TradeOff tradeOff(const FactStore& facts, const PenaltyChoice& choice) {
    const PacedRuns paced = pacedRuns(facts, choice);
    TradeOff result;
    for (int third = 1; third <= 3; ++third)
        if (!paced.thirds[static_cast<std::size_t>(third - 1)].empty())
            result.rows.push_back(tradeOffRow(facts, paced, third));
    result.breakEven = breakEvenOf(paced);
    return result;
}

TradeOffRow tradeOffRow(const FactStore& facts, const PacedRuns& paced, int third,
                        ThirdFigure figure, Why* why) {
    const std::vector<PacedRun>& runs = paced.thirds[static_cast<std::size_t>(third - 1)];
    const std::size_t touches = sumOf(runs, &PacedRun::touches);
    const std::size_t missed = sumOf(runs, &PacedRun::missed);
    const TradeOffRow row{.third = third,
                          .runs = runs.size(),
                          .touchesPerRun = perRun(runs, static_cast<double>(touches)),
                          .interval = poissonInterval(touches, static_cast<double>(runs.size())),
                          .missedPerRun = perRun(runs, static_cast<double>(missed)),
                          .paddling = perRun(runs, sumOf(runs, &PacedRun::paddling)),
                          .total = perRun(runs, sumOf(runs, &PacedRun::total))};
    if (why)
        tellRow(*why, facts, runs, row, figure);
    return row;
}

std::optional<double> breakEvenOf(const PacedRuns& paced, Why* why) {
    // One percent of T seconds is T/100 s, which are T/200 touches of 2 s.
    constexpr double TimesPerTouch = 200;
    if (paced.medians.empty())
        return {};
    const double mean = std::accumulate(paced.medians.begin(), paced.medians.end(), 0.0) /
                        static_cast<double>(paced.medians.size());
    const double touches = mean / TimesPerTouch;
    if (why) {
        why->result(penalty_rules::BreakEven, touches, fmt::format("{:.2f}", touches));
        for (const double median : paced.medians)
            why->input("median paddling", median);
    }
    return touches;
}

} // namespace kavela
