#include "performance/detail_shares.h"
#include "performance/penalty_charts.h"
#include "performance/penalty_cost.h"
#include "performance/penalty_rates.h"
#include "performance/penalty_reasons.h"
#include "performance/penalty_rules.h"
#include "performance/trade_off.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <set>
#include <stdexcept>
#include <tuple>

/// Rates of penalties, what they cost, and what speed pays for. Figures to many digits come from a
/// model that was written apart from this code.
namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Boundaries of beta and Poisson distributions are found by search.
constexpr double Bound = 1e-6;

athletedata031 paddled(std::vector<double> times, std::vector<std::int64_t> pens,
                       const char* name = "Ada Brook") {
    athletedata031 run;
    run.names = {name};
    run.phase = "Heats";
    run.cat = "K1W";
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.pens = std::move(pens);
    for (const std::int64_t pen : run.sectioninfo.pens)
        run.sectioninfo.totalpen += pen;
    return run;
}

/// Four gates in two sections, the third one upstream.
splittakerdata031 race(std::vector<athletedata031> runs) {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.gates = 4;
    document.info.upGates = {3};
    document.info.definedsections = {{1, 2}, {3, 4}};
    document.info.totalsplits = 2;
    document.athletes = std::move(runs);
    return document;
}

FactStore factsOf(const splittakerdata031& document) {
    FactStore facts;
    facts.add(document, "cup/a.kvx");
    return facts;
}

/// The sample's four races.
FactStore sampleFacts() {
    const auto folder =
        std::filesystem::path(KAVELA_TEST_DATA).parent_path().parent_path() / "examples" / "races";
    FactStore facts;
    for (const char* name :
         {"harbour_night.kvx", "highland_open.kvx", "riverside_cup.kvx", "spring_opener.kvx"}) {
        const auto file = recogniseSplitFile(
            folder / name, [](std::string_view) {}, [] { return ReferenceDate{}; });
        EXPECT_NE(file.version, nullptr) << name;
        facts.add(file.document, name);
    }
    return facts;
}

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

double explained(const FactStore& facts, const std::string& id) {
    const auto reason = explainPenalty(facts, id);
    if (!reason)
        throw std::out_of_range(id);
    EXPECT_FALSE(reason->shown.empty()) << id;
    return reason->value;
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
    const FactStore facts = factsOf(document);
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
        factsOf(race({paddled({40, 41}, {2, 50, 49, -2}), paddled({40, 41}, {2, 0, 52, 0}),
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
    const FactStore clean = factsOf(race(runs));
    const RateRow row = rowOf(penaltyRates(clean, RateBy::Gate), "2");
    EXPECT_EQ(row.touches->rate, 0);
    EXPECT_NEAR(row.touches->interval.low, 0, Bound);
    EXPECT_NEAR(row.touches->interval.high, 0.08811254092083348, Bound);

    const FactStore early = factsOf(race({paddled({40, 0}, {0, 2, 0, 0})}));
    const PenaltyRates rates = penaltyRates(early, RateBy::Gate);
    EXPECT_EQ(rates.clean, std::nullopt);
    ASSERT_EQ(rates.rows.size(), 4U) << "every gate of the course has a row";
    EXPECT_EQ(rowOf(rates, "3").touches, std::nullopt);
    EXPECT_EQ(rowOf(rates, "3").missed, std::nullopt);
    EXPECT_EQ(rowOf(rates, "1").touches->of, 1U);

    const PenaltyRates none =
        penaltyRates(factsOf(race({paddled({40, 41}, {2, 0})})), RateBy::Crew);
    EXPECT_THAT(none.rows, IsEmpty());
    EXPECT_EQ(none.leftOut, 1U);
}

TEST(PenaltyRates, AreDrawnTogetherByAFixedWeightBelowThreeRows) {
    // Up: 1 of 4, down: 0 of 4 after the course is cut to two gates.
    splittakerdata031 document = race(std::vector(4, paddled({40, 41}, {0, 0})));
    document.info.gates = 2;
    document.info.upGates = {1};
    document.athletes[2].sectioninfo.pens = {2, 0};
    const PenaltyRates rates = penaltyRates(factsOf(document), RateBy::Type);
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
    const PenaltyRates rates = penaltyRates(factsOf(document), RateBy::Gate);
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
    FactStore facts = factsOf(document);
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

TEST(PenaltyCosts, CountThePlacesWithoutThePenaltyTiesShared) {
    athletedata031 tied = paddled({40, 42}, {0, 0, 0, 0});
    splittakerdata031 document =
        race({paddled({40, 40}, {0, 0, 0, 0}), paddled({40, 41}, {0, 0, 0, 0}), tied, tied,
              paddled({40, 40}, {2, 2, 0, 0}), paddled({30, 30}, {0, 0, 0, 50}),
              paddled({40, 0}, {2, 0, 0, 0}), paddled({40, 40}, {4, 0})});
    document.athletes[7].phase = "Final"; // by section, and alone
    const FactStore facts = factsOf(document);
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
    const FactStore facts = factsOf(
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
    EXPECT_THAT(tradeOff(factsOf(race(runs))).rows, IsEmpty());
    EXPECT_EQ(tradeOff(factsOf(race(runs))).breakEven, std::nullopt);

    runs.push_back(paddled({40, 0}, {0, 0, 0, 0})); // unfinished: still five
    EXPECT_THAT(tradeOff(factsOf(race(runs))).rows, IsEmpty());
    runs.push_back(paddled({40, 46}, {0, 0, 0, 0}));
    const TradeOff divided = tradeOff(factsOf(race(runs)));
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
    const FactStore facts = factsOf(document);
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
    const FactStore facts = factsOf(race({paddled({40, 41}, {0, 2, 0, 0}, "Ada Brook"),
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

TEST(PenaltyCharts, DrawEveryGateOfACourseInItsOrder) {
    splittakerdata031 document = race(std::vector(10, paddled({40, 41}, {0, 0, 0, 0})));
    for (std::size_t i = 0; i < 6; ++i)
        document.athletes[i].sectioninfo.pens = {0, 0, 2, i == 0 ? 2 : 0};
    const FactStore facts = factsOf(document);
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
