#include "performance/penalty_rates.h"

#include "common/text.h"
#include "performance/penalty_rules.h"

#include <fmt/format.h>

#include <algorithm>

namespace kavela {

namespace {

/// As many mistakes of a row as somebody would look up one by one.
constexpr std::size_t MostPlacesTold = 60;

std::vector<CountOf> touchesOf(std::span<const PassageRow> rows) {
    std::vector<CountOf> counts;
    for (const PassageRow& row : rows)
        counts.push_back({row.touches, row.passages.size()});
    return counts;
}

/// Tells where those passages were that `isAsked`.
void tellPassages(Why& why, const FactStore& facts, const PassageRow& row,
                  bool (GatePassage::*isAsked)() const) {
    std::size_t told = 0;
    std::size_t all = 0;
    for (const GatePassage& passage : row.passages) {
        if (!(passage.*isAsked)())
            continue;
        if (++all > MostPlacesTold)
            continue;
        ++told;
        why.input(std::string(facts.text(facts.runs()[passage.run].crew)),
                  static_cast<double>(passage.seconds), placeOf(facts, passage));
    }
    if (told < all)
        why.note(say("{} more are not listed.", all - told));
}

std::optional<RateOf> toldRate(const FactStore& facts, const PassageRow& row, std::size_t count,
                               bool (GatePassage::*isAsked)() const, Why* why) {
    const auto rate = rateOf(count, row.passages.size());
    if (why && rate) {
        tellRate(*why, penalty_rules::Single, *rate);
        tellPassages(*why, facts, row, isAsked);
    }
    return rate;
}

RateRow rateRow(const FactStore& facts, const PassageRow& row, std::span<const PassageRow> all,
                const CommonRate& common) {
    return {.key = row.key,
            .label = row.label,
            .file = row.file,
            .number = row.number,
            .touches = touchRate(facts, row),
            .missed = missedRate(facts, row),
            .shrunk = shrunkTouches(facts, row, all, common)};
}

} // namespace

PenaltyRates penaltyRates(const FactStore& facts, RateBy by, const PenaltyChoice& choice) {
    const CountedPassages counted = countedPassages(facts, choice);
    const std::vector<PassageRow> rows = passageRows(facts, counted, by);
    PenaltyRates rates{.by = by,
                       .runs = counted.runs,
                       .leftOut = counted.leftOut,
                       .clean = cleanRuns(facts, counted),
                       .common = commonTouches(rows),
                       .rows = {}};
    for (const PassageRow& row : rows)
        rates.rows.push_back(rateRow(facts, row, rows, rates.common));
    std::ranges::stable_sort(rates.rows, [](const RateRow& a, const RateRow& b) {
        return a.shrunk.rate > b.shrunk.rate;
    });
    return rates;
}

CommonRate commonTouches(std::span<const PassageRow> rows, Why* why) {
    const std::vector<CountOf> counts = touchesOf(rows);
    const CommonRate common = commonRate(counts);
    if (why) {
        why->result(penalty_rules::Common, common.mean, rateText(common.mean));
        why->input("M", common.strength);
        for (std::size_t i = 0; i < rows.size() && i < MostPlacesTold; ++i) {
            why->input("x of " + rows[i].label, static_cast<double>(counts[i].count));
            why->input("n of " + rows[i].label, static_cast<double>(counts[i].of));
        }
        if (rows.size() > MostPlacesTold)
            why->note(say("{} more rows are not listed.", rows.size() - MostPlacesTold));
    }
    return common;
}

std::optional<RateOf> touchRate(const FactStore& facts, const PassageRow& row, Why* why) {
    return toldRate(facts, row, row.touches, &GatePassage::isTouch, why);
}

std::optional<RateOf> missedRate(const FactStore& facts, const PassageRow& row, Why* why) {
    return toldRate(facts, row, row.missed, &GatePassage::isMissed, why);
}

ShrunkRate shrunkTouches(const FactStore& facts, const PassageRow& row,
                         std::span<const PassageRow> all, const CommonRate& common,
                         ShrunkFigure figure, Why* why) {
    const ShrunkRate shrunk = shrunkRate({row.touches, row.passages.size()}, common);
    if (why) {
        if (figure == ShrunkFigure::Above) {
            why->result(penalty_rules::Above, shrunk.above, fmt::format("{:.2f}", shrunk.above));
        } else {
            why->result(penalty_rules::Ranked, shrunk.rate, rateText(shrunk.rate));
            why->uncertain(shrunk.interval, "5 % and 95 % of the beta distribution");
        }
        why->input("x", static_cast<double>(row.touches));
        why->input("n", static_cast<double>(row.passages.size()));
        why->input("m", common.mean);
        why->input("M", common.strength);
        (void)touchRate(facts, row, why->part());
        (void)commonTouches(all, why->part());
    }
    return shrunk;
}

} // namespace kavela
