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
        KAVELA_TEXT("gate"),    KAVELA_TEXT("type of gate"), KAVELA_TEXT("tenth of the course"),
        KAVELA_TEXT("section"), KAVELA_TEXT("crew"),         KAVELA_TEXT("category"),
        KAVELA_TEXT("phase"),   KAVELA_TEXT("race"),         KAVELA_TEXT("month"),
        KAVELA_TEXT("hand")};
    return translated(Kinds[static_cast<std::size_t>(by)]);
}

std::string countText(const NamedRate& row) {
    return row.touches ? say("{} of {}", row.touches->count, row.touches->of) : say("nobody came");
}

std::string namesOf(const std::vector<const NamedRate*>& rows) {
    constexpr std::size_t MostNamed = 3;
    std::string names;
    const std::size_t shown = std::min(rows.size(), MostNamed);
    for (std::size_t i = 0; i < shown; ++i)
        names += fmt::format("{}{} ({})", i == 0 ? "" : ", ", rows[i]->name, countText(*rows[i]));
    return rows.size() > shown ? say("{} and {} more", names, rows.size() - shown) : names;
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
        return say("Nobody's penalties are known by gate.");
    if (bold.size() == 1)
        return withCapital(say("{} stands out: touched more than the {} that all have in common.",
                               namesOf(bold), rateText(common)));
    if (!bold.empty())
        return withCapital(say("{} stand out: touched more than the {} that all have in common.",
                               namesOf(bold), rateText(common)));
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
    return row.label.empty() ? say("those without one") : row.label;
}

bool isClearlyBelow(const TradeOffRow& low, const TradeOffRow& high) {
    return low.interval.high < high.interval.low;
}

} // namespace

std::string ordinalText(int rank) {
    const int tens = rank % 100 / 10;
    const int ones = rank % 10;
    if (tens != 1 && ones == 1)
        return say("{}st", rank);
    if (tens != 1 && ones == 2)
        return say("{}nd", rank);
    if (tens != 1 && ones == 3)
        return say("{}rd", rank);
    return say("{}th", rank);
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
        rows.push_back({say("gate {}", gate.gate), gate.touches, gate.shrunk.rate, gate.isBold});
    return rankedWords(rows, kindOf(RateBy::Gate), course.common);
}

std::string wordsOf(const PenaltyCost& cost) {
    return cost.isMissedGate() ? say("Without this missed gate: {}.", ordinalText(cost.without))
                               : say("Without this touch: {}.", ordinalText(cost.without));
}

std::string wordsOf(std::span<const PenaltyCost> costs) {
    if (costs.empty())
        return say("No penalty of a whole run is known by gate.");
    const auto cost = static_cast<std::size_t>(
        std::ranges::count_if(costs, [](const PenaltyCost& one) { return one.places() > 0; }));
    const auto medals =
        static_cast<std::size_t>(std::ranges::count_if(costs, &PenaltyCost::isMedal));
    const std::string all = counted(costs.size(), "penalty", "penalties");
    if (cost == 0)
        return say("None of {} cost a place.", all);
    return medals == 0 ? say("Of {} {} cost places, none of them a medal.", all, cost)
                       : say("Of {} {} cost places, {} of them a medal.", all, cost, medals);
}

std::string wordsOf(const DetailShares& details) {
    if (details.penalties == 0)
        return say("There is no penalty.");
    const std::string all = counted(details.penalties, "penalty", "penalties");
    if (details.noted == 0)
        return say("None of {} was noted in detail.", all);
    if (details.noted < LeastValues)
        return say("Noted in detail: {} of {}. Too few to tell.", details.noted, all);
    return say("Noted in detail: {} of {}. Shares of what was noted, no rates: nobody notes how "
               "gates are passed clean.",
               details.noted, all);
}

std::string wordsOf(const TradeOff& tradeOff) {
    const auto& rows = tradeOff.rows;
    if (rows.empty())
        return say("Too few to tell: no group has {} whole runs.", LeastDivided);
    if (rows.size() == 1)
        return say("{:.2f} touches a run in {}, all in one third of the field.",
                   rows.front().touchesPerRun, counted(rows.front().runs, "run", "runs"));
    const TradeOffRow& fast = rows.front();
    const TradeOffRow& slow = rows.back();
    if (isClearlyBelow(fast, slow))
        return say("The fast touch less: {:.2f} touches a run in the faster third, {:.2f} in the "
                   "slower.",
                   fast.touchesPerRun, slow.touchesPerRun);
    if (isClearlyBelow(slow, fast))
        return say("The fast touch more: {:.2f} touches a run in the faster third, {:.2f} in the "
                   "slower.",
                   fast.touchesPerRun, slow.touchesPerRun);
    return say("Too few to tell fast from slow: {:.2f} touches a run in the faster third, {:.2f} "
               "in the slower.",
               fast.touchesPerRun, slow.touchesPerRun);
}

std::string breakEvenWords(const TradeOff& tradeOff) {
    return tradeOff.breakEven
               ? say("1 % of speed pays for {:.2f} touches a run.", *tradeOff.breakEven)
               : std::string();
}

std::string cleanWords(const PenaltyRates& rates) {
    if (!rates.clean)
        return say("No whole run is known by gate.");
    const RateOf& clean = *rates.clean;
    return say("{} of {} without a penalty: {:.1f} % ({:.1f}–{:.1f}).", clean.count,
               counted(clean.of, "whole run", "whole runs"), 100 * clean.rate,
               100 * clean.interval.low, 100 * clean.interval.high);
}

} // namespace kavela
