#include "performance/penalty_charts.h"
#include "performance/penalty_races.h"
#include "performance/penalty_rates.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <tuple>

/// Passages of gates, and how often they are penalized.
namespace kavela::test {

namespace {

using namespace penalties;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> keysOf(const FactStore& facts, RateBy by) {
    std::vector<std::string> keys;
    for (const PassageRow& row : passageRows(facts, countedPassages(facts), by))
        keys.push_back(row.key);
    return keys;
}

const RateRow& rowOf(const PenaltyRates& rates, std::string_view key) {
    const auto found = std::ranges::find(rates.rows, key, &RateRow::key);
    if (found == rates.rows.end())
        throw std::out_of_range(std::string(key));
    return *found;
}

std::vector<std::int64_t> gatesPassed(const FactStore& facts, std::size_t run) {
    std::vector<std::int64_t> gates;
    for (const GatePassage& passage : passagesOf(facts, run))
        gates.push_back(passage.gate);
    return gates;
}

} // namespace

TEST(PenaltyPassages, EndWhereAnUnfinishedRunWasLastTimedOrPenalized) {
    splittakerdata031 document =
        race({paddled({40, 41}, {0, 0, 0, 0}), paddled({40, 0}, {0, 0, 0, 0}),
              paddled({40, 0}, {0, 0, 0, 2}), paddled({0, 41}, {0, 0, 0, 0}),
              paddled({0, 0}, {0, 0, 0, 0}), paddled({40, 41}, {0, 0, 0, 0}, "Cy Lock")});
    allresultsdata030 line;
    line.name = "LOCK Cy DSQ";
    document.info.resultsCSVdata = {line};
    const FactStore facts = factsOfCup(document);
    EXPECT_THAT(gatesPassed(facts, 0), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(gatesPassed(facts, 1), ElementsAre(1, 2));
    EXPECT_THAT(gatesPassed(facts, 2), ElementsAre(1, 2, 4));
    EXPECT_THAT(gatesPassed(facts, 3), ElementsAre(1, 2, 3, 4)) << "untimed, then timed";
    EXPECT_THAT(gatesPassed(facts, 4), IsEmpty());
    EXPECT_THAT(gatesPassed(facts, 5), ElementsAre(1, 2, 3, 4)) << "timed to the end";
    const CountedPassages counted = countedPassages(facts);
    EXPECT_EQ(counted.runs, 6U);
    EXPECT_THAT(counted.whole, ElementsAre(0)) << "a list's word counts beside a time";
}

TEST(PenaltyPassages, TellTouchesFromMissedGatesAndNeverAddThem) {
    const FactStore facts =
        factsOfCup(race({paddled({40, 41}, {2, 50, 49, -2}), paddled({40, 41}, {2, 0, 52, 0}),
                         paddled({40, 41}, {4, 50}), paddled({40, 41}, {})}));
    const PenaltyRates rates = penaltyRates(facts, RateBy::Gate);
    EXPECT_EQ(rates.runs, 2U);
    EXPECT_EQ(rates.leftOut, 2U) << "known by section, and not at all";
    for (const auto& [key, touches, missed] :
         {std::tuple{"1", 2U, 0U}, {"2", 0U, 1U}, {"3", 1U, 1U}, {"4", 0U, 0U}}) {
        const RateRow& row = rowOf(rates, key);
        EXPECT_EQ(row.touches->count, touches) << key;
        EXPECT_EQ(row.missed->count, missed) << key;
        EXPECT_EQ(row.touches->of, 2U) << key;
    }
    EXPECT_EQ(rates.clean->count, 0U);
    EXPECT_EQ(rates.clean->of, 2U);
}

TEST(PenaltyRates, HoldAtNothingOfManyAndAtNothingOfNothing) {
    std::vector<athletedata031> runs(28, paddled({40, 41}, {0, 0, 0, 0}));
    const FactStore clean = factsOfCup(race(runs));
    const RateRow row = rowOf(penaltyRates(clean, RateBy::Gate), "2");
    EXPECT_EQ(row.touches->rate, 0);
    EXPECT_NEAR(row.touches->interval.low, 0, Bound);
    EXPECT_NEAR(row.touches->interval.high, 0.08811254092083348, Bound);

    const FactStore early = factsOfCup(race({paddled({40, 0}, {0, 2, 0, 0})}));
    const PenaltyRates rates = penaltyRates(early, RateBy::Gate);
    EXPECT_EQ(rates.clean, std::nullopt);
    ASSERT_EQ(rates.rows.size(), 4U) << "every gate of the course has a row";
    EXPECT_EQ(rowOf(rates, "3").touches, std::nullopt);
    EXPECT_EQ(rowOf(rates, "3").missed, std::nullopt);
    EXPECT_EQ(rowOf(rates, "1").touches->of, 1U);

    const PenaltyRates none =
        penaltyRates(factsOfCup(race({paddled({40, 41}, {2, 0})})), RateBy::Crew);
    EXPECT_THAT(none.rows, IsEmpty());
    EXPECT_EQ(none.leftOut, 1U);
}

TEST(PenaltyRates, AreDrawnTogetherByAFixedWeightBelowThreeRows) {
    // Up: 1 of 4, down: 0 of 4 after the course is cut to two gates.
    splittakerdata031 document = race(std::vector(4, paddled({40, 41}, {0, 0})));
    document.info.gates = 2;
    document.info.upGates = {1};
    document.athletes[2].sectioninfo.pens = {2, 0};
    const PenaltyRates rates = penaltyRates(factsOfCup(document), RateBy::Type);
    EXPECT_NEAR(rates.common.mean, 1.0 / 6, 1e-12);
    EXPECT_NEAR(rates.common.strength, 20, 1e-9);
    ASSERT_EQ(rates.rows.size(), 2U);
    EXPECT_EQ(rates.rows[0].key, "up");
    EXPECT_NEAR(rates.rows[0].shrunk.rate, 0.18055555555555555, 1e-12);
    EXPECT_NEAR(rates.rows[0].shrunk.interval.low, 0.07076598248830479, Bound);
    EXPECT_NEAR(rates.rows[0].shrunk.interval.high, 0.3210322441284418, Bound);
    EXPECT_NEAR(rates.rows[0].shrunk.above, 0.5256287522993663, 1e-9);
    EXPECT_FALSE(rates.rows[0].standsOut());
}

TEST(PenaltyRates, StandOutWhereTheyAreSurelyAboveTheRest) {
    splittakerdata031 document = race(std::vector(10, paddled({40, 41}, {0, 0, 0})));
    document.info.gates = 3;
    for (std::size_t i = 0; i < 6; ++i)
        document.athletes[i].sectioninfo.pens = {0, i == 0 ? 2 : 0, 2};
    const PenaltyRates rates = penaltyRates(factsOfCup(document), RateBy::Gate);
    EXPECT_EQ(rates.rows[0].key, "3");
    EXPECT_NEAR(rates.rows[0].shrunk.rate, 0.5674486803519062, 1e-9);
    EXPECT_NEAR(rates.rows[0].shrunk.above, 0.9886910885094585, 1e-9);
    EXPECT_TRUE(rates.rows[0].standsOut());
    EXPECT_FALSE(rates.rows[1].standsOut());
}

TEST(PenaltyRates, AreGroupedByWhatIsTheSameHoweverItIsWritten) {
    splittakerdata031 document = race({paddled({40, 41}, {0, 2, 0, 0}, "Ada Brook"),
                                       paddled({40, 41}, {2, 0, 0, 0}, "BROOK Ada"),
                                       paddled({40, 41}, {0, 0, 0, 0}, "Cy Lock")});
    document.athletes[0].hand = "Left";
    document.athletes[1].hand = "left";
    document.athletes[1].cat = "WK1";
    document.info.date = referenceDate(std::chrono::year(2026) / 5 / 31, 86399);
    document.info.definedsections = {{1, 2}, {3}};
    FactStore facts = factsOfCup(document);
    EXPECT_THAT(keysOf(facts, RateBy::Gate), ElementsAre("1", "2", "3", "4"));
    EXPECT_THAT(keysOf(facts, RateBy::Type), ElementsAre("down", "up"));
    EXPECT_THAT(keysOf(facts, RateBy::Tenth), ElementsAre("3", "5", "8", "10"));
    EXPECT_THAT(keysOf(facts, RateBy::Section), ElementsAre("1", "2", ""));
    EXPECT_THAT(keysOf(facts, RateBy::Crew), ElementsAre("Ada Brook", "Cy Lock"));
    EXPECT_THAT(keysOf(facts, RateBy::Category), ElementsAre("K1W"));
    EXPECT_THAT(keysOf(facts, RateBy::Phase), ElementsAre("Heats"));
    EXPECT_THAT(keysOf(facts, RateBy::File), ElementsAre("cup/a.kvx"));
    EXPECT_THAT(keysOf(facts, RateBy::Month), ElementsAre("2026-05"));
    EXPECT_THAT(keysOf(facts, RateBy::Hand), ElementsAre("Left", ""));
    EXPECT_EQ(rowOf(penaltyRates(facts, RateBy::Crew), "Ada Brook").touches->count, 2U);
    EXPECT_EQ(rowOf(penaltyRates(facts, RateBy::Crew), "Ada Brook").touches->of, 8U);

    // The same number in another file is another gate; a crew is the same one.
    facts.add(document, "open/a.kvx");
    EXPECT_EQ(keysOf(facts, RateBy::Gate).size(), 8U);
    EXPECT_EQ(rowOf(penaltyRates(facts, RateBy::Gate), "open/a.kvx:2").touches->of, 3U);
    EXPECT_EQ(rowOf(penaltyRates(facts, RateBy::Section), "cup/a.kvx:1").touches->of, 6U);
    EXPECT_THAT(keysOf(facts, RateBy::Crew), ElementsAre("Ada Brook", "Cy Lock"));
    EXPECT_THAT(fileLabels(facts), ElementsAre("cup/a.kvx", "open/a.kvx"));
}

TEST(PenaltyCharts, DrawEveryGateOfACourseInItsOrder) {
    splittakerdata031 document = race(std::vector(10, paddled({40, 41}, {0, 0, 0, 0})));
    for (std::size_t i = 0; i < 6; ++i)
        document.athletes[i].sectioninfo.pens = {0, 0, 2, i == 0 ? 2 : 0};
    const FactStore facts = factsOfCup(document);
    const PenaltyRates rates = penaltyRates(facts, RateBy::Gate);
    const std::vector<CourseOfRates> courses = coursesOfRates(facts, rates);
    ASSERT_EQ(courses.size(), 1U);
    EXPECT_EQ(courses[0].label, "a");
    ASSERT_EQ(courses[0].gates.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(courses[0].gates[i].gate, static_cast<std::int64_t>(i + 1));
    EXPECT_TRUE(courses[0].gates[2].isUpstream);
    EXPECT_EQ(courses[0].gates[2].section, 2U);
    EXPECT_TRUE(courses[0].gates[2].isBold);
    EXPECT_EQ(courses[0].gates[2].share, 1);
    EXPECT_LT(courses[0].gates[3].share, 1);
    const RateChart chart = rateChart(rates, 2);
    ASSERT_EQ(chart.marks.size(), 2U);
    EXPECT_EQ(chart.leftOut, 2U);
    EXPECT_EQ(chart.marks[0].label, "gate 3");
    EXPECT_EQ(chart.marks[0].bare, 0.6);
    EXPECT_GE(chart.most, chart.marks[0].interval.high);
}

} // namespace kavela::test
