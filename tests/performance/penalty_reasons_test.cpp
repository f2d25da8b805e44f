#include "performance/detail_shares.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_races.h"
#include "performance/penalty_rates.h"
#include "performance/penalty_rules.h"
#include "performance/trade_off.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

/// The sample's penalties, and why their numbers are what they are.
namespace kavela::test {

using namespace penalties;

TEST(SamplePenalties, AgreeWithAModelOfTheirOwn) {
    const FactStore facts = sampleFacts();
    const PenaltyRates gates = penaltyRates(facts, RateBy::Gate);
    EXPECT_EQ(gates.runs, 180U);
    EXPECT_EQ(gates.leftOut, 0U);
    EXPECT_EQ(gates.clean->count, 92U);
    EXPECT_EQ(gates.clean->of, 174U);
    EXPECT_NEAR(gates.common.mean, 0.027526595744680853, 1e-12);
    EXPECT_NEAR(gates.common.strength, 614.7618759571114, 1e-6);
    ASSERT_EQ(gates.rows.size(), 86U);
    const RateRow& worst = gates.rows[0];
    EXPECT_EQ(worst.key, "spring_opener.kvx:9");
    EXPECT_EQ(worst.touches->count, 5U);
    EXPECT_EQ(worst.touches->of, 68U);
    EXPECT_NEAR(worst.touches->interval.low, 0.03624770590817935, Bound);
    EXPECT_NEAR(worst.touches->interval.high, 0.14344886148111327, Bound);
    EXPECT_NEAR(worst.shrunk.rate, 0.032108268505739064, 1e-9);
    EXPECT_NEAR(worst.shrunk.interval.low, 0.021850417143266278, Bound);
    EXPECT_NEAR(worst.shrunk.interval.high, 0.043922186899312654, Bound);
    EXPECT_NEAR(worst.shrunk.above, 0.7403390318199645, 1e-9);
    EXPECT_TRUE(std::ranges::none_of(gates.rows, &RateRow::standsOut));

    const PenaltyRates types = penaltyRates(facts, RateBy::Type);
    EXPECT_EQ(types.rows[0].key, "up");
    EXPECT_EQ(types.rows[0].touches->count, 42U);
    EXPECT_EQ(types.rows[0].touches->of, 1001U);
    EXPECT_NEAR(types.rows[0].shrunk.rate, 0.04167534957384292, 1e-9);
    EXPECT_TRUE(types.rows[0].standsOut()) << "upstream gates, from 0.95 on";
    const RateRow crew = penaltyRates(facts, RateBy::Crew).rows[0];
    EXPECT_EQ(crew.key, "Leonie Kehrwasser");
    EXPECT_NEAR(crew.shrunk.rate, 0.03269687024605851, 1e-9);

    const std::vector<PenaltyCost> costs = penaltyCosts(facts);
    int places = 0;
    for (const PenaltyCost& cost : costs)
        places += cost.places();
    EXPECT_EQ(costs.size(), 107U);
    EXPECT_EQ(places, 294);
    EXPECT_EQ(std::ranges::count_if(costs, &PenaltyCost::isMedal), 21);

    const TradeOff risk = tradeOff(facts);
    ASSERT_EQ(risk.rows.size(), 3U);
    EXPECT_EQ(risk.rows[1].runs, 42U);
    EXPECT_NEAR(risk.rows[0].touchesPerRun, 0.38636363636363635, 1e-12);
    EXPECT_NEAR(risk.rows[0].interval.low, 0.24618500809718144, Bound);
    EXPECT_NEAR(risk.rows[0].interval.high, 0.5795279564285312, Bound);
    EXPECT_NEAR(risk.rows[2].paddling, 102.41856159120778, 1e-9);
    EXPECT_NEAR(risk.rows[1].total, 103.24830273945501, 1e-9);
    EXPECT_NEAR(*risk.breakEven, 0.4928775, 1e-12);
}

TEST(PenaltyReasons, AreTheValuesOfTheTables) {
    const FactStore facts = sampleFacts();
    for (const std::string_view name : RateByNames) {
        const PenaltyRates rates = penaltyRates(facts, *rateByOf(name));
        const std::string by(name);
        EXPECT_EQ(explained(facts, "common/" + by), rates.common.mean);
        for (const RateRow& row : rates.rows) {
            EXPECT_EQ(explained(facts, "rate/" + by + '/' + row.key), row.shrunk.rate);
            EXPECT_EQ(explained(facts, "above/" + by + '/' + row.key), row.shrunk.above);
            EXPECT_EQ(explained(facts, "touches/" + by + '/' + row.key), row.touches->rate);
            EXPECT_EQ(explained(facts, "missed/" + by + '/' + row.key), row.missed->rate);
        }
        EXPECT_EQ(explained(facts, "clean"), rates.clean->rate);
    }
    for (const PenaltyCost& cost : penaltyCosts(facts)) {
        const RunRow& run = facts.runs()[cost.run];
        const auto reason = explainPenalty(facts, "cost/" + courseKey(facts, run.file, run.number) +
                                                      '/' + std::to_string(cost.gate));
        ASSERT_TRUE(reason);
        EXPECT_EQ(reason->value, cost.places());
        ASSERT_EQ(reason->parts.size(), 2U);
        EXPECT_EQ(reason->parts[0].value - reason->parts[1].value, reason->value);
    }
    for (const DetailRow& row : detailShares(facts).rows)
        EXPECT_EQ(explained(facts, "detail/" + std::string(row.field) + '/' +
                                       (row.code ? std::to_string(*row.code) : "-")),
                  row.share.rate);
    const TradeOff risk = tradeOff(facts);
    for (const TradeOffRow& row : risk.rows) {
        const std::string third = "third/" + std::to_string(row.third);
        EXPECT_EQ(explained(facts, third + "/touches"), row.touchesPerRun);
        EXPECT_EQ(explained(facts, third + "/missed"), row.missedPerRun);
        EXPECT_EQ(explained(facts, third + "/paddling"), row.paddling);
        EXPECT_EQ(explained(facts, third + "/total"), row.total);
    }
    EXPECT_EQ(explained(facts, "breakeven"), *risk.breakEven);
}

TEST(PenaltyReasons, NameThePassagesAndRefuseWhatIsNoNumber) {
    const FactStore facts = factsOfCup(race({paddled({40, 41}, {0, 2, 0, 0}, "Ada Brook"),
                                             paddled({40, 42}, {0, 50, 0, 0}, "Cy Lock")}));
    const auto reason = explainPenalty(facts, "touches/gate/2");
    ASSERT_TRUE(reason);
    EXPECT_EQ(reason->shown, "50.0 %");
    const auto& touch = reason->inputs.back();
    EXPECT_EQ(touch.name, "Ada Brook");
    EXPECT_EQ(touch.place->run, 0U);
    EXPECT_EQ(touch.place->gate, 2U);
    const auto missed = explainPenalty(facts, "cost/1/2");
    ASSERT_TRUE(missed);
    EXPECT_FALSE(missed->notes.empty()) << "a missed gate also saved paddling";
    for (const char* id :
         {"", "rate", "rate/", "rate/gate", "rate/gate/5", "rate/bend/1", "cost/0/1", "cost/9/2",
          "cost/0", "cost/x/y", "detail/pole", "detail/pole/77", "third/1/touches",
          "third/0/touches", "breakeven", "clean/1"})
        EXPECT_FALSE(explainPenalty(facts, id)) << id;
    std::set<std::string_view> ids;
    for (const Rule* rule : penaltyRules()) {
        EXPECT_TRUE(ids.insert(rule->id).second) << rule->id;
        EXPECT_FALSE(rule->sentence.empty() || rule->formula.empty()) << rule->id;
    }
}

} // namespace kavela::test
