#include "performance/penalty_words.h"

#include <gmock/gmock.h>

#include <cmath>

/// What the figures about penalties say in a sentence, and of whom they are asked.
namespace kavela::test {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

athletedata031 paddled(const char* name, double second, std::vector<std::int64_t> pens,
                       const char* phase = "Final") {
    athletedata031 run;
    run.names = {name};
    run.phase = phase;
    run.cat = "K1W";
    run.sectioninfo.times = {40, second};
    run.sectioninfo.pens = std::move(pens);
    for (const std::int64_t pen : run.sectioninfo.pens)
        run.sectioninfo.totalpen += pen;
    return run;
}

/// Four gates in two sections, the third one upstream.
FactStore factsOfRuns(std::vector<athletedata031> runs) {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.gates = 4;
    document.info.upGates = {3};
    document.info.definedsections = {{1, 2}, {3, 4}};
    document.info.totalsplits = 2;
    document.athletes = std::move(runs);
    FactStore facts;
    facts.add(document, "cup/a.kvx");
    return facts;
}

/// Forty runs of which the third gate was touched by so many.
FactStore touchedAtThree(std::size_t touched) {
    std::vector<athletedata031> runs;
    for (std::size_t i = 0; i < 40; ++i)
        runs.push_back(paddled("Ada Brook", 41, {0, 0, i < touched ? 2 : 0, 0}));
    return factsOfRuns(std::move(runs));
}

PenaltyCost costOf(std::int64_t seconds, int rank, int without) {
    PenaltyCost cost;
    cost.seconds = seconds;
    cost.rank = rank;
    cost.without = without;
    return cost;
}

std::string ratesOf(const FactStore& facts, RateBy by) {
    return wordsOf(penaltyRates(facts, by));
}

} // namespace

TEST(PenaltyWords, NameWhatStandsOutAndNothingElse) {
    EXPECT_THAT(ratesOf(touchedAtThree(30), RateBy::Gate),
                StartsWith("Gate 3 (30 of 40) stands out"));
    EXPECT_EQ(ratesOf(touchedAtThree(2), RateBy::Gate),
              "Too few to tell: 2 touches in 160 passages.");
    EXPECT_EQ(ratesOf(FactStore(), RateBy::Gate), "Nobody's penalties are known by gate.");
    EXPECT_EQ(ratesOf(touchedAtThree(30), RateBy::Crew),
              "Only one crew: there is nothing to compare it with.");
    const FactStore even =
        factsOfRuns({paddled("Ada Brook", 41, {2, 0, 2, 0}), paddled("Bea Croft", 42, {0, 2, 0, 2}),
                     paddled("Cy Lock", 43, {0, 0, 0, 0})});
    EXPECT_THAT(ratesOf(even, RateBy::Gate), StartsWith("No gate stands out: the highest, gate "));
    const auto courses = coursesOfRates(even, penaltyRates(even, RateBy::Gate));
    ASSERT_EQ(courses.size(), 1U);
    EXPECT_EQ(wordsOf(courses.front()), ratesOf(even, RateBy::Gate));
}

TEST(PenaltyWords, TellAPlaceWithoutATouch) {
    for (const auto& [rank, text] : {std::pair{1, "1st"},
                                     {2, "2nd"},
                                     {3, "3rd"},
                                     {11, "11th"},
                                     {12, "12th"},
                                     {21, "21st"},
                                     {113, "113th"}})
        EXPECT_EQ(ordinalText(rank), text);
    EXPECT_EQ(wordsOf(costOf(2, 5, 3)), "Without this touch: 3rd.");
    EXPECT_EQ(wordsOf(costOf(50, 9, 9)), "Without this missed gate: 9th.");
    const std::vector<PenaltyCost> costs{costOf(2, 5, 3), costOf(2, 9, 8), costOf(2, 9, 9)};
    EXPECT_EQ(wordsOf(costs), "Of 3 penalties 2 cost places, 1 of them a medal.");
    EXPECT_EQ(wordsOf(std::span(costs).last(1)), "None of 1 penalty cost a place.");
}

TEST(PenaltyWords, DoNotTellThirdsApartWhoseIntervalsMeet) {
    const auto third = [](int number, double touches, Interval interval) {
        return TradeOffRow{.third = number,
                           .runs = 10,
                           .touchesPerRun = touches,
                           .interval = interval,
                           .missedPerRun = 0,
                           .paddling = 95.0 + 5 * number,
                           .total = 100};
    };
    TradeOff apart{{third(1, 0.5, {0.3, 0.8}), third(3, 1.9, {1.2, 2.8})}, 0.47};
    EXPECT_THAT(wordsOf(apart), StartsWith("The fast touch less: 0.50 touches a run"));
    EXPECT_EQ(breakEvenWords(apart), "1 % of speed pays for 0.47 touches a run.");
    apart.rows[1].interval.low = 0.7;
    EXPECT_THAT(wordsOf(apart), StartsWith("Too few to tell fast from slow"));
    EXPECT_THAT(wordsOf(TradeOff()), HasSubstr("no group has 6 whole runs"));
    EXPECT_EQ(breakEvenWords(TradeOff()), "");
}

TEST(PenaltyChoices, ShowACrewAndAPhaseAmongTheOthers) {
    std::vector<athletedata031> runs;
    for (int i = 0; i < 6; ++i)
        runs.push_back(
            paddled(i == 0 ? "Ada Brook" : "Bea Croft", 41 + i, {0, i == 0 ? 2 : 0, 0, 0}));
    runs.push_back(paddled("Ada Brook", 41, {2, 0, 0, 0}, "Semifinal"));
    const FactStore facts = factsOfRuns(std::move(runs));
    const std::string crew(facts.text(facts.runs()[0].crewKey));
    const std::string phase(facts.text(facts.runs()[0].phaseKey));

    const PenaltyChoice ada{.crewKey = crew};
    EXPECT_EQ(penaltyRates(facts, RateBy::Gate, ada).runs, 2U);
    EXPECT_EQ(penaltyCosts(facts, ada).size(), 2U);
    const PenaltyChoice adaInFinal{.phaseKey = phase, .crewKey = crew};
    EXPECT_EQ(penaltyRates(facts, RateBy::Gate, adaInFinal).runs, 1U);
    const auto costs = penaltyCosts(facts, adaInFinal);
    ASSERT_EQ(costs.size(), 1U);
    EXPECT_EQ(costs[0].of, 6U) << "she is ranked among all";

    // The fastest of six, so of the thirds only the first has a run of hers.
    const TradeOff risk = tradeOff(facts, adaInFinal);
    ASSERT_EQ(risk.rows.size(), 1U);
    EXPECT_EQ(risk.rows[0].third, 1);
    EXPECT_EQ(risk.rows[0].runs, 1U);
    EXPECT_DOUBLE_EQ(risk.rows[0].touchesPerRun, 1);
    EXPECT_NEAR(risk.rows[0].paddling, 100 * 81 / 83.5, 1e-9) << "of the median of all six";
    EXPECT_EQ(wordsOf(risk), "1.00 touches a run in 1 run, all in one third of the field.");
}

} // namespace kavela::test
