#include "performance/penalty_words.h"

#include "common/text.h"
#include "performance/penalty_rules.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <vector>

namespace kavela {

namespace {

/// With fewer touches than these among all rows nothing can be ranked.
constexpr std::size_t LeastTouches = 3;

/// A row that may stand out.
struct NamedRate {
    std::string name;
    std::optional<RateOf> touches;
    double shrunk = 0;
    bool isBold = false;
};

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return countedWords(static_cast<std::int64_t>(count), one, many);
}

std::string withCapital(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

/// What one row of a grouping is called.
std::string_view kindOf(RateBy by) {
    constexpr std::array<std::string_view, 10> Kinds{
        "gate",    "type of gate", "tenth of the course",
        "section", "crew",         "category",
        "phase",   "race",         "month",
        "hand"};
    return Kinds[static_cast<std::size_t>(by)];
}

std::string countText(const NamedRate& row) {
    return row.touches ? say("{} of {}", row.touches->count, row.touches->of)
                       : std::string("nobody came");
}

std::string namesOf(const std::vector<const NamedRate*>& rows) {
    constexpr std::size_t MostNamed = 3;
    std::string names;
    const std::size_t shown = std::min(rows.size(), MostNamed);
    for (std::size_t i = 0; i < shown; ++i)
        names += fmt::format("{}{} ({})", i == 0 ? "" : ", ", rows[i]->name, countText(*rows[i]));
    if (rows.size() > shown)
        names += say(" and {} more", rows.size() - shown);
    return names;
}

std::string rankedWords(const std::vector<NamedRate>& rows, std::string_view kind, double common) {
    std::size_t touches = 0;
    std::size_t passages = 0;
    std::vector<const NamedRate*> bold;
    for (const NamedRate& row : rows) {
        touches += row.touches ? row.touches->count : 0;
        passages += row.touches ? row.touches->of : 0;
        if (row.isBold)
            bold.push_back(&row);
    }
    if (passages == 0)
        return "Nobody's penalties are known by gate.";
    if (!bold.empty())
        return withCapital(say("{} {} out: touched more than the {} that all have in "
                               "common.",
                               namesOf(bold), bold.size() == 1 ? "stands" : "stand",
                               rateText(common)));
    if (touches < LeastTouches)
        return say("Too few to tell: {} in {}.", counted(touches, "touch", "touches"),
                   counted(passages, "passage", "passages"));
    if (rows.size() < 2)
        return say("Only one {}: there is nothing to compare it with.", kind);
    const auto& highest = *std::ranges::max_element(rows, {}, &NamedRate::shrunk);
    return say("No {} stands out: the highest, {} ({}), may be chance.", kind, highest.name,
               countText(highest));
}

std::string nameOfRow(const RateRow& row) {
    return row.label.empty() ? "those without one" : row.label;
}

bool isClearlyBelow(const TradeOffRow& low, const TradeOffRow& high) {
    return low.interval.high < high.interval.low;
}

} // namespace

std::string ordinalText(int rank) {
    const int tens = rank % 100 / 10;
    const int ones = rank % 10;
    const char* const ending = tens == 1   ? "th"
                               : ones == 1 ? "st"
                               : ones == 2 ? "nd"
                               : ones == 3 ? "rd"
                                           : "th";
    return std::to_string(rank) + ending;
}

std::string wordsOf(const PenaltyRates& rates) {
    std::vector<NamedRate> rows;
    for (const RateRow& row : rates.rows)
        rows.push_back({nameOfRow(row), row.touches, row.shrunk.rate, row.standsOut()});
    return rankedWords(rows, kindOf(rates.by), rates.common.mean);
}

std::string wordsOf(const CourseOfRates& course) {
    std::vector<NamedRate> rows;
    for (const GateOnCourse& gate : course.gates)
        rows.push_back(
            {"gate " + std::to_string(gate.gate), gate.touches, gate.shrunk.rate, gate.isBold});
    return rankedWords(rows, "gate", course.common);
}

std::string wordsOf(const PenaltyCost& cost) {
    return say("Without this {}: {}.", cost.isMissedGate() ? "missed gate" : "touch",
               ordinalText(cost.without));
}

std::string wordsOf(std::span<const PenaltyCost> costs) {
    if (costs.empty())
        return "No penalty of a whole run is known by gate.";
    const auto cost = static_cast<std::size_t>(
        std::ranges::count_if(costs, [](const PenaltyCost& one) { return one.places() > 0; }));
    const auto medals =
        static_cast<std::size_t>(std::ranges::count_if(costs, &PenaltyCost::isMedal));
    if (cost == 0)
        return say("None of {} cost a place.", counted(costs.size(), "penalty", "penalties"));
    return say("Of {} {} cost places, {} a medal.", counted(costs.size(), "penalty", "penalties"),
               cost, medals == 0 ? std::string("none of them") : say("{} of them", medals));
}

std::string wordsOf(const DetailShares& details) {
    if (details.penalties == 0)
        return "There is no penalty.";
    const std::string all = counted(details.penalties, "penalty", "penalties");
    if (details.noted == 0)
        return say("None of {} was noted in detail.", all);
    const std::string start =
        say("Of {} {} noted in detail.", all, counted(details.noted, "was", "were"));
    if (details.noted < LeastValues)
        return start + " Too few to tell.";
    return start + " Shares of what was noted, no rates: nobody notes how gates are passed clean.";
}

std::string wordsOf(const TradeOff& tradeOff) {
    const auto& rows = tradeOff.rows;
    if (rows.empty())
        return say("Too few to tell: no group has {} whole runs.", LeastDivided);
    if (rows.size() == 1)
        return say("{} touches a run in {}, all in one third of the field.",
                   fmt::format("{:.2f}", rows.front().touchesPerRun),
                   counted(rows.front().runs, "run", "runs"));
    const TradeOffRow& fast = rows.front();
    const TradeOffRow& slow = rows.back();
    const std::string figures = say("{:.2f} touches a run in the faster third, {:.2f} in "
                                    "the slower.",
                                    fast.touchesPerRun, slow.touchesPerRun);
    if (isClearlyBelow(fast, slow))
        return "The fast touch less: " + figures;
    if (isClearlyBelow(slow, fast))
        return "The fast touch more: " + figures;
    return "Too few to tell fast from slow: " + figures;
}

std::string breakEvenWords(const TradeOff& tradeOff) {
    return tradeOff.breakEven
               ? say("1 % of speed pays for {:.2f} touches a run.", *tradeOff.breakEven)
               : std::string();
}

std::string cleanWords(const PenaltyRates& rates) {
    if (!rates.clean)
        return "No whole run is known by gate.";
    const RateOf& clean = *rates.clean;
    return say("{} of {} without a penalty: {:.1f} % ({:.1f}–{:.1f}).", clean.count,
               counted(clean.of, "whole run", "whole runs"), 100 * clean.rate,
               100 * clean.interval.low, 100 * clean.interval.high);
}

} // namespace kavela
