#include "performance/penalty_reasons.h"

#include "common/delimited_text.h"
#include "performance/detail_shares.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_rates.h"
#include "performance/trade_off.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavela {

namespace {

using MaybeReason = std::optional<Reason>;

/// What stands before the first slash and behind it.
std::pair<std::string_view, std::string_view> beforeSlash(std::string_view id) {
    const std::size_t slash = id.find('/');
    if (slash == id.npos)
        return {id, {}};
    return {id.substr(0, slash), id.substr(slash + 1)};
}

template <class Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number{};
    return parseField(text, number) ? std::optional(number) : std::nullopt;
}

/// A reason that was told; nothing when nothing was.
MaybeReason toldBy(const Why& why) {
    Reason reason = why.reason();
    return reason.rule ? std::optional(std::move(reason)) : std::nullopt;
}

MaybeReason explainRow(const FactStore& facts, std::string_view what, std::string_view rest,
                       const PenaltyChoice& choice) {
    const auto [name, key] = beforeSlash(rest);
    const auto by = rateByOf(name);
    if (!by)
        return {};
    const auto rows = passageRows(facts, countedPassages(facts, choice), *by);
    Why why;
    if (what == "common") {
        (void)commonTouches(rows, &why);
        return toldBy(why);
    }
    const auto row = std::ranges::find(rows, key, &PassageRow::key);
    if (row == rows.end())
        return {};
    if (what == "touches")
        (void)touchRate(facts, *row, &why);
    else if (what == "missed")
        (void)missedRate(facts, *row, &why);
    else
        (void)shrunkTouches(facts, *row, rows, commonTouches(rows),
                            what == "above" ? ShrunkFigure::Above : ShrunkFigure::Rate, &why);
    return toldBy(why);
}

MaybeReason explainClean(const FactStore& facts, const PenaltyChoice& choice) {
    Why why;
    (void)cleanRuns(facts, countedPassages(facts, choice), &why);
    return toldBy(why);
}

MaybeReason explainDetail(const FactStore& facts, std::string_view rest,
                          const PenaltyChoice& choice) {
    const auto [field, text] = beforeSlash(rest);
    const auto code = numberIn<std::int32_t>(text);
    if (!code && text != "-")
        return {};
    Why why;
    (void)detailShare(facts, choice, field, code, &why);
    return toldBy(why);
}

/// The run that "RUN" or "FILE:RUN" names.
std::optional<std::size_t> runNamed(const FactStore& facts, std::string_view name) {
    for (std::size_t i = 0; i < facts.runs().size(); ++i)
        if (courseKey(facts, facts.runs()[i].file, facts.runs()[i].number) == name)
            return i;
    return {};
}

/// Whether the cost of a run's penalties is known.
bool isCounted(const FactStore& facts, const RunRow& run, const PenaltyChoice& choice) {
    return run.isComplete && isKnownByGate(facts, run) && ChosenRuns(choice).has(facts, run);
}

/// The group of a run, which has one.
RivalGroup groupWith(const FactStore& facts, std::size_t run) {
    for (RivalGroup& group : groupsOf(facts))
        if (std::ranges::find(group, run) != group.end())
            return std::move(group);
    return {};
}

MaybeReason explainCost(const FactStore& facts, std::string_view rest,
                        const PenaltyChoice& choice) {
    // A path has slashes of its own, so the gate is what stands behind the last one.
    const std::size_t slash = rest.find_last_of('/');
    const auto run = runNamed(facts, rest.substr(0, slash));
    const auto gate =
        slash == rest.npos ? std::nullopt : numberIn<std::int64_t>(rest.substr(slash + 1));
    if (!run || !gate)
        return {};
    const RunRow& row = facts.runs()[*run];
    if (!isCounted(facts, row, choice))
        return {};
    const auto passages = passagesOf(facts, *run);
    const auto penalty = std::ranges::find(passages, *gate, &GatePassage::gate);
    if (penalty == passages.end() || penalty->seconds == 0)
        return {};
    Why why;
    (void)penaltyCost(facts, GroupTotals(facts, groupWith(facts, *run)),
                      CourseGates(facts, facts.fileOf(row)), *penalty, &why);
    return toldBy(why);
}

MaybeReason explainThird(const FactStore& facts, std::string_view rest,
                         const PenaltyChoice& choice) {
    constexpr std::array<std::string_view, 5> Figures{"touches", "missed", "paddling", "total",
                                                      "runs"};
    const auto [number, name] = beforeSlash(rest);
    const auto third = numberIn<int>(number);
    const auto figure = std::ranges::find(Figures, name);
    const PacedRuns paced = pacedRuns(facts, choice);
    if (!third || *third < 1 || *third > 3 || figure == Figures.end() ||
        paced.thirds[static_cast<std::size_t>(*third - 1)].empty())
        return {};
    Why why;
    (void)tradeOffRow(facts, paced, *third, static_cast<ThirdFigure>(figure - Figures.begin()),
                      &why);
    return toldBy(why);
}

MaybeReason explainBreakEven(const FactStore& facts, const PenaltyChoice& choice) {
    Why why;
    (void)breakEvenOf(pacedRuns(facts, choice), &why);
    return toldBy(why);
}

} // namespace

std::optional<Reason> explainPenalty(const FactStore& facts, std::string_view id,
                                     const PenaltyChoice& choice) {
    const auto [what, rest] = beforeSlash(id);
    constexpr std::array<std::string_view, 5> OfRows{"rate", "above", "touches", "missed",
                                                     "common"};
    if (std::ranges::find(OfRows, what) != OfRows.end())
        return explainRow(facts, what, rest, choice);
    if (what == "cost")
        return explainCost(facts, rest, choice);
    if (what == "detail")
        return explainDetail(facts, rest, choice);
    if (what == "third")
        return explainThird(facts, rest, choice);
    if (id == "clean")
        return explainClean(facts, choice);
    return id == "breakeven" ? explainBreakEven(facts, choice) : std::nullopt;
}

} // namespace kavela
