#include "performance/detail_shares.h"
#include "performance/penalty_charts.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_races.h"
#include "performance/trade_off.h"

#include <gmock/gmock.h>

#include <tuple>

/// What penalties cost, what speed pays for, and what is noted of them.
namespace kavela::test {

using namespace penalties;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(PenaltyCosts, CountThePlacesWithoutThePenaltyTiesShared) {
    athletedata031 tied = paddled({40, 42}, {0, 0, 0, 0});
    splittakerdata031 document =
        race({paddled({40, 40}, {0, 0, 0, 0}), paddled({40, 41}, {0, 0, 0, 0}), tied, tied,
              paddled({40, 40}, {2, 2, 0, 0}), paddled({30, 30}, {0, 0, 0, 50}),
              paddled({40, 0}, {2, 0, 0, 0}), paddled({40, 40}, {4, 0})});
    document.athletes[7].phase = "Final"; // by section, and alone
    const FactStore facts = factsOfCup(document);
    const std::vector<PenaltyCost> costs = penaltyCosts(facts);
    ASSERT_EQ(costs.size(), 3U) << "neither an unfinished run nor one known by section";
    // Totals: 80, 81, 82, 82, 84, 110. Without one touch the fifth ties with two thirds.
    EXPECT_EQ(costs[0].run, 4U);
    EXPECT_EQ(costs[0].gate, 1);
    EXPECT_EQ(costs[0].section, 1U);
    EXPECT_EQ(costs[0].rank, 5);
    EXPECT_EQ(costs[0].without, 3);
    EXPECT_EQ(costs[0].places(), 2);
    EXPECT_EQ(costs[0].of, 6U);
    EXPECT_TRUE(costs[0].isMedal());
    EXPECT_EQ(costs[2].rank, 6);
    EXPECT_EQ(costs[2].without, 1) << "60.00 is faster than all";
    EXPECT_TRUE(costs[2].isMissedGate());
    EXPECT_THAT(penaltyCosts(facts, {"mk1"}), IsEmpty());
    EXPECT_EQ(penaltyCosts(facts, {"WK1"}).size(), 3U);
}

TEST(PenaltyCosts, CompareToTheHundredth) {
    const FactStore facts = factsOfCup(
        race({paddled({40.1, 48.82}, {0, 0, 0, 0}), paddled({40.1, 48.8200000001}, {2, 0, 0, 0})}));
    const std::vector<PenaltyCost> costs = penaltyCosts(facts);
    ASSERT_EQ(costs.size(), 1U);
    EXPECT_EQ(costs[0].rank, 2);
    EXPECT_EQ(costs[0].without, 1);
}

TEST(TradeOff, DividesGroupsOfSixAndNoneOfFive) {
    std::vector<athletedata031> runs;
    for (const double time : {50.0, 40.0, 44.0, 48.0, 42.0})
        runs.push_back(paddled({40, time}, {0, 0, 0, 0}));
    runs[1].sectioninfo.pens = {2, 2, 50, 0};
    runs[1].sectioninfo.totalpen = 54;
    EXPECT_THAT(tradeOff(factsOfCup(race(runs))).rows, IsEmpty());
    EXPECT_EQ(tradeOff(factsOfCup(race(runs))).breakEven, std::nullopt);

    runs.push_back(paddled({40, 0}, {0, 0, 0, 0})); // unfinished: still five
    EXPECT_THAT(tradeOff(factsOfCup(race(runs))).rows, IsEmpty());
    runs.push_back(paddled({40, 46}, {0, 0, 0, 0}));
    const TradeOff divided = tradeOff(factsOfCup(race(runs)));
    ASSERT_EQ(divided.rows.size(), 3U);
    // Paddling 80, 82 | 84, 86 | 88, 90 with the median 85; totals have the median 87.
    EXPECT_EQ(divided.rows[0].third, 1);
    EXPECT_EQ(divided.rows[0].runs, 2U);
    EXPECT_DOUBLE_EQ(divided.rows[0].touchesPerRun, 1);
    EXPECT_DOUBLE_EQ(divided.rows[0].missedPerRun, 0.5);
    EXPECT_NEAR(divided.rows[0].paddling, 100 * 81 / 85.0, 1e-9);
    EXPECT_NEAR(divided.rows[0].total, 100 * (134 + 82) / 2.0 / 87, 1e-9);
    EXPECT_DOUBLE_EQ(divided.rows[2].touchesPerRun, 0);
    EXPECT_DOUBLE_EQ(divided.rows[2].interval.low, 0);
    EXPECT_NEAR(*divided.breakEven, 85 / 200.0, 1e-12);

    const TradeOffChart chart = tradeOffChart(divided);
    ASSERT_EQ(chart.equalLine.size(), 2U);
    const auto [left, right] = std::pair(chart.equalLine[0], chart.equalLine[1]);
    EXPECT_NEAR((left.second - right.second) / (right.first - left.first), *divided.breakEven, 1e-9)
        << "one percent slower has so many touches fewer";
}

TEST(DetailShares, AreOfThePenaltiesNotedBesideThoseThatAreNot) {
    splittakerdata031 document =
        race({paddled({40, 41}, {2, 2, 0, 0}), paddled({40, 41}, {0, 0, 50, 0})});
    pendata030 details;
    details.gate = {1, 3};
    details.penkind = {0};
    details.polekind = {1, 1};
    document.athletes[0].sectioninfo.pendetails = {details};
    const FactStore facts = factsOfCup(document);
    const DetailShares shares = detailShares(facts);
    EXPECT_EQ(shares.noted, 2U);
    const auto of = [&](std::string_view field) {
        std::vector<std::tuple<std::string, std::size_t, std::size_t>> rows;
        for (const DetailRow& row : shares.rows)
            if (row.field == field)
                rows.emplace_back(detailText(row), row.share.count, row.share.of);
        return rows;
    };
    // Four penalties: noted at the first gate of the first run and the third, where it had none,
    // without any word at its second gate and in the other run.
    EXPECT_THAT(of("kind"),
                ElementsAre(std::tuple("Touch", 1U, 1U), std::tuple("not noted", 3U, 4U)));
    EXPECT_THAT(of("pole"),
                ElementsAre(std::tuple("Outer pole", 2U, 2U), std::tuple("not noted", 2U, 4U)));
    EXPECT_THAT(of("eye"), ElementsAre(std::tuple("not noted", 4U, 4U)));
    EXPECT_EQ(explained(facts, "detail/pole/-"), 0.5);
    EXPECT_EQ(explained(facts, "detail/pole/1"), 1);
}

} // namespace kavela::test
