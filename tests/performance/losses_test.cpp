#include "performance/losses.h"

#include "performance/loss_charts.h"
#include "performance/loss_counts.h"
#include "performance/loss_notes.h"
#include "performance/loss_races.h"
#include "performance/loss_reasons.h"
#include "performance/loss_ways.h"
#include "sample/races.h"

#include <gmock/gmock.h>

#include <numeric>

/// What runs lose against one another, and that every number can tell why.
namespace kavela::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;

const std::vector<std::string> References{"winner", "fastest", "ideal", "median", "own", "run:2"};

LossReference reference(const std::string& text) {
    return lossReferenceOf(text).value();
}

/// The losses of the last run against the first.
RunLosses lastOnFirst(const splittakerdata031& race) {
    return lossesOf(factsOf(race), reference("run:0")).back();
}

std::vector<std::pair<std::size_t, std::size_t>> endsOf(const RunLosses& losses) {
    std::vector<std::pair<std::size_t, std::size_t>> ends;
    for (const Stretch& stretch : losses.stretches)
        ends.emplace_back(stretch.first, stretch.last);
    return ends;
}

std::int64_t sumOfShown(const ShownLosses& shown) {
    return std::accumulate(shown.stretches.begin(), shown.stretches.end(),
                           shown.penalties + shown.timing);
}

class SampleRace : public testing::TestWithParam<std::string> {
protected:
    FactStore m_facts = factsOf(sample::holdRace(sample::riversideCup()));
    LossReference m_reference = reference(GetParam());
    std::vector<RunLosses> m_runs = lossesOf(m_facts, m_reference);

    /// What the id explains must be what the table has.
    void expectExplained(const std::string& id, double value) const {
        const auto reason = explainLoss(m_facts, m_reference, id);
        ASSERT_TRUE(reason) << id;
        EXPECT_EQ(reason->value, value) << id;
        EXPECT_FALSE(reason->inputs.empty()) << id;
    }
    void expectGates(const RunLosses& losses, const std::vector<GateLoss>& gates) const {
        for (const GateLoss& gate : gates) {
            const auto number = static_cast<std::size_t>(gate.gate);
            expectExplained(lossId(LossNumber::Gate, losses.run, m_reference, number), gate.loss);
            if (gate.exit)
                expectExplained(lossId(LossNumber::Exit, losses.run, m_reference, number),
                                *gate.exit);
        }
    }
};

} // namespace

TEST_P(SampleRace, PartsAddUpToTheGapAlsoAsTheyAreShown) {
    std::size_t sums = 0;
    for (const RunLosses& losses : m_runs) {
        EXPECT_EQ(losses.shown.gap, sumOfShown(losses.shown)) << losses.run;
        if (!losses.sum)
            continue;
        ++sums;
        const LossSum& sum = *losses.sum;
        EXPECT_NEAR(sum.gap, sum.paddling + sum.penalties + sum.timing, 1e-9);
        EXPECT_NEAR(sum.gap, sum.own - sum.reference, 1e-9);
        const auto bars = waterfallOf(losses);
        for (std::size_t i = 1; i + 1 < bars.size(); ++i)
            EXPECT_EQ(bars[i].from, bars[i - 1].to);
        EXPECT_EQ(bars.back().to, bars[bars.size() - 2].to);
    }
    EXPECT_GT(sums, m_runs.size() / 4);
}

TEST_P(SampleRace, EveryNumberIsExplainedByItself) {
    for (const RunLosses& losses : m_runs) {
        if (losses.run % 9 != 0) // each explanation computes its run again
            continue;
        for (const Stretch& stretch : losses.stretches) {
            const auto id = [&](LossNumber number) {
                return lossId(number, losses.run, m_reference, stretch.last);
            };
            expectExplained(id(LossNumber::Loss), stretch.loss);
            expectExplained(id(LossNumber::Percent), stretch.percent);
            expectExplained(id(LossNumber::Between), stretch.between);
            expectGates(losses, stretch.gates);
        }
        if (!losses.sum)
            continue;
        const auto id = [&](LossNumber number) { return lossId(number, losses.run, m_reference); };
        expectExplained(id(LossNumber::Gap), losses.sum->gap);
        expectExplained(id(LossNumber::Paddling), losses.sum->paddling);
        expectExplained(id(LossNumber::Penalties), losses.sum->penalties);
        expectExplained(id(LossNumber::Timing), losses.sum->timing);
        if (losses.xTimeDiff)
            expectExplained(id(LossNumber::ExpectedTime), *losses.xTimeDiff);
    }
}

INSTANTIATE_TEST_SUITE_P(References, SampleRace, testing::ValuesIn(References),
                         [](const auto& parameter) {
                             return parameter.param == "run:2" ? std::string("rival")
                                                               : parameter.param;
                         });

TEST(Losses, TheShownTextIsTheOneThatAddsUp) {
    // Three times 0.333 are 1.00: two of the parts are shown as 0.33, the first as 0.34.
    const auto race =
        lossRace(3, {lossRun({"A"}, {30, 30, 30}), lossRun({"B"}, {30.3334, 30.3333, 30.3333})});
    const FactStore facts = factsOf(race);
    EXPECT_THAT(lastOnFirst(race).shown.stretches, ElementsAre(34, 33, 33));
    EXPECT_EQ(explainLoss(facts, {}, "loss/1/winner/1")->shown, "+0.34");
    EXPECT_EQ(explainLoss(facts, {}, "loss/1/winner/2")->shown, "+0.33");
}

TEST(Losses, ATimeAfterAnUntakenMarkCoversBothSections) {
    for (const double untaken : {0.0, -1.0, 999.9, 999.99}) {
        const RunLosses losses = lastOnFirst(lossRace(
            4, {lossRun({"A"}, {10, 11, 12, 13}), lossRun({"B"}, {10.5, untaken, 24, 13})}));
        using Ends = std::pair<std::size_t, std::size_t>;
        EXPECT_THAT(endsOf(losses), ElementsAre(Ends{1, 1}, Ends{2, 3}, Ends{4, 4})) << untaken;
        EXPECT_DOUBLE_EQ(losses.stretches[1].loss, 1) << untaken;
        EXPECT_DOUBLE_EQ(losses.stretches[1].percent, 100.0 / 23) << untaken;
        EXPECT_FALSE(losses.sum) << untaken;
    }
}

TEST(Losses, AMergedTimeIsNeverABestNorInAMedian) {
    const auto race =
        lossRace(2, {lossRun({"A"}, {10, 20}), lossRun({"B"}, {0, 15}), lossRun({"C"}, {11, 18})});
    const RunLosses losses = lossesOf(factsOf(race), reference("ideal")).front();
    EXPECT_EQ(losses.referenceTotal, 28);
}

TEST(Losses, AnIdealRunEndsBeforeASectionThatNobodyHas) {
    const auto race = lossRace(3, {lossRun({"A"}, {10, 0, 30}), lossRun({"B"}, {9})});
    const RunLosses losses = lossesOf(factsOf(race), reference("ideal")).front();
    EXPECT_EQ(losses.stretches.size(), 1U);
    EXPECT_FALSE(losses.referenceTotal);
    EXPECT_FALSE(losses.sum);
}

TEST(Losses, OfficialTotalsCountOnlyWhereBothHaveOne) {
    auto race = lossRace(2, {lossRun({"A"}, {40, 40}), lossRun({"B"}, {41, 41})});
    for (athletedata031& run : race.athletes)
        run.sectioninfo.totalpen = 2;
    race.athletes[1].sectioninfo.realtime = 82.5;
    race.athletes[1].sectioninfo.realpen = 4;
    const RunLosses video = lastOnFirst(race);
    EXPECT_DOUBLE_EQ(video.sum->gap, 2);
    EXPECT_DOUBLE_EQ(video.sum->penalties, 0);
    race.athletes[0].sectioninfo.realtime = 80.1;
    const RunLosses official = lastOnFirst(race);
    EXPECT_NEAR(official.sum->gap, 6.4, 1e-9);
    EXPECT_DOUBLE_EQ(official.sum->penalties, 4);
    EXPECT_NEAR(official.sum->timing, 0.4, 1e-9);
}

TEST(Losses, ATimeThatIsNoResultLeavesThoseOfTheSections) {
    auto race = lossRace(2, {lossRun({"A"}, {40, 40}), lossRun({"B"}, {30, 30})});
    race.athletes[1].sectioninfo.realtime = 999.9;
    const RunLosses losses = lossesOf(factsOf(race), reference("winner")).front();
    EXPECT_EQ(losses.referenceRun, 1U);
    ASSERT_TRUE(losses.sum);
    EXPECT_DOUBLE_EQ(losses.sum->gap, 20);
}

TEST(Losses, TheFirstOfEqualTotalsIsTheWinner) {
    const auto race = lossRace(1, {lossRun({"A"}, {40.001}), lossRun({"B"}, {40})});
    EXPECT_EQ(lossesOf(factsOf(race), reference("winner")).back().referenceRun, 0U);
}

TEST(Losses, AReversedDoubleIsTheSameCrew) {
    auto race = lossRace(1, {lossRun({"Bell Anna", "Roe Jan"}, {40}), lossRun({"C"}, {39}),
                             lossRun({"Roe Jan", "Bell Anna"}, {41})});
    race.athletes[2].timeslosses.push_back({});
    race.athletes[2].timeslosses[0].versus = "Roe Jan / Bell Anna";
    race.athletes[2].timeslosses[0].timeloss = 0.25;
    race.athletes[2].phase = "Semifinal";
    const RunLosses losses = lossesOf(factsOf(race), reference("own")).back();
    EXPECT_EQ(losses.referenceRun, 0U);
    EXPECT_DOUBLE_EQ(losses.explained.value(), 0.25);
}

TEST(Losses, ACourseOfTwelveSectionsCountsAllOfThem) {
    const RunLosses losses =
        lastOnFirst(lossRace(12, {lossRun({"A"}, std::vector<double>(12, 8)),
                                  lossRun({"B"}, std::vector<double>(12, 8.25))}));
    EXPECT_EQ(losses.stretches.size(), 12U);
    EXPECT_DOUBLE_EQ(losses.sum->gap, 3);
    EXPECT_EQ(losses.stretches[3].third, 1);
    EXPECT_EQ(losses.stretches[4].third, 2);
}

TEST(Losses, PenaltiesBySectionStandInTheirSections) {
    auto race = lossRace(3, {lossRun({"A"}, {9, 9, 9}), lossRun({"B"}, {9, 9, 9})});
    race.info.gates = 20;
    race.athletes[1].sectioninfo.pens = {0, 2, 50};
    const RunLosses losses = lastOnFirst(race);
    EXPECT_EQ(losses.stretches[1].pen, 2);
    EXPECT_EQ(losses.stretches[2].pen, 50);
}

TEST(Losses, GatesStandInTheirSectionAndTheRestIsBetween) {
    auto race = lossRace(2, {lossRun({"A"}, {20, 20}), lossRun({"B"}, {21, 20})});
    race.info.gates = 4;
    race.info.upGates = {2};
    race.info.definedsections = {{1, 2}, {3}};
    const auto gate = [](std::int64_t number, double time, double entrance, double exit) {
        upstreamdata025 upstream;
        upstream.num = number;
        upstream.time = time;
        upstream.timeEntrace = entrance;
        upstream.timeExit = exit;
        return upstream;
    };
    race.athletes[0].upstreams = {gate(2, 3, 1, 2), gate(4, 2, 0, 2)};
    race.athletes[1].upstreams = {gate(2, 4.5, 2, 2.5), gate(4, 3, 1, 2), gate(2, 9, 1, 8)};
    const RunLosses losses = lastOnFirst(race);
    EXPECT_EQ(losses.stretches[0].kind, StretchKind::Upstream);
    EXPECT_EQ(losses.stretches[1].kind, StretchKind::Downstream);
    ASSERT_EQ(losses.stretches[0].gates.size(), 1U);
    EXPECT_DOUBLE_EQ(losses.stretches[0].gates[0].loss, 1.5);
    EXPECT_EQ(losses.stretches[0].gates[0].entrance, 1);
    EXPECT_DOUBLE_EQ(losses.stretches[0].between, -0.5);
    ASSERT_EQ(losses.gatesElsewhere.size(), 1U);
    EXPECT_FALSE(losses.gatesElsewhere[0].entrance);
}

TEST(Losses, TotalsPlacesAndStrokesHaveIds) {
    const FactStore facts = factsOf(sample::holdRace(sample::riversideCup()));
    const LossRivals rivals(facts);
    const auto value = [&](const std::string& id) -> std::optional<double> {
        const auto reason = explainLoss(facts, {}, id);
        return reason ? std::optional(reason->value) : std::nullopt;
    };
    std::size_t strokesTold = 0;
    for (std::size_t run = 0; run < facts.runs().size(); ++run) {
        const std::string number = std::to_string(run);
        EXPECT_EQ(value("total/" + number), lossTotal(facts, run));
        EXPECT_EQ(value("place/" + number), placeInGroup(facts, rivals.groupOf(run), run));
        EXPECT_EQ(value("strokes/" + number + "/2"), stretchStrokes(facts, run, 2, 2));
        EXPECT_EQ(value("penalty/" + number + "/2"),
                  facts.sectionsOf(facts.runs()[run]).size() < 2
                      ? std::nullopt
                      : std::optional<double>(stretchPenalties(facts, run, 2, 2)));
        strokesTold += stretchStrokes(facts, run, 2, 2) ? 1U : 0U;
    }
    EXPECT_GT(strokesTold, 0U);
    for (const char* id : {"total", "total/9999", "place/0/1", "strokes/0", "strokes/0/0",
                           "strokes/0/99", "penalty/0/1/1"})
        EXPECT_FALSE(explainLoss(facts, {}, id)) << id;
}

/// Stamps of a film of 50 frames a second.
TEST(Losses, ATimeInAGateIsAsSureAsItsMarks) {
    const auto filmed = [](double time) {
        athletedata031 run = lossRun({"A"}, {20, 20});
        upstreamdata025 gate;
        gate.num = 2;
        gate.time = time;
        run.upstreams = {gate};
        for (const std::int64_t frame : {100, 601, 1107, 1615, 1902, 2105, 2306, 2401, 2507})
            run.upstreams.front().cmtimes.push_back({frame, 50, 1, 0});
        return run;
    };
    auto race = lossRace(2, {filmed(3), filmed(4.5)});
    race.athletes[1].names = {"B"};
    race.info.gates = 2;
    race.info.upGates = {2};
    race.info.definedsections = {{1, 2}, {}};
    const FactStore facts = factsOf(race);
    ASSERT_NEAR(markUncertainty(facts, 0), 0.02, 1e-12);
    const auto reason = explainLoss(facts, reference("run:0"), "gateloss/1//2");
    ASSERT_TRUE(reason && reason->uncertainty);
    EXPECT_NEAR(reason->uncertainty->low, 1.46, 1e-9);
    EXPECT_NEAR(reason->uncertainty->high, 1.54, 1e-9);
    EXPECT_NEAR(reason->inputs.front().plusMinus, 0.02, 1e-12);
}

TEST(Losses, ATrainingIsOneGroupWhateverThePhases) {
    auto race = lossRace(1, {lossRun({"A"}, {40}), lossRun({"B"}, {41})});
    race.athletes[0].phase = "1";
    race.athletes[1].phase = "2";
    EXPECT_EQ(lossesOf(factsOf(race), reference("winner")).back().referenceRun, 1U);
    race.info.session = "Training";
    EXPECT_EQ(lossesOf(factsOf(race), reference("winner")).back().referenceRun, 0U);
}

TEST(Losses, AMedianIsThatOfTheFinalistsOfTheCategory) {
    std::vector<athletedata031> runs;
    for (int i = 0; i < 12; ++i)
        runs.push_back(lossRun({std::to_string(i)}, {40.0 + i}));
    runs.push_back(lossRun({"H"}, {30}));
    runs.back().phase = "Heats 1";
    const RunLosses losses = lossesOf(factsOf(lossRace(1, runs)), reference("median")).back();
    EXPECT_EQ(losses.referenceTotal, 44.5); // 11th and 12th are no finalists, nor is the heat
}

TEST(Losses, NotesAreSharedByTheirReasons) {
    auto race = lossRace(1, {lossRun({"A"}, {40}), lossRun({"B"}, {41})});
    timeloss031 note;
    note.reasons = {"wide", "late"};
    note.timeloss = 0.5;
    timeloss031 gained = note;
    gained.reasons = {"wide"};
    gained.timeloss = -0.2;
    race.athletes[1].timeslosses = {note, gained, {}};
    const FactStore facts = factsOf(race);
    const std::vector<std::size_t> runs{0, 1};
    const LossNotes notes = lossNotesOf(facts, runs);
    EXPECT_EQ(notes.unfinished, 1U);
    const auto wide = std::ranges::find(notes.rows, std::string("wide"), &LossNoteRow::key);
    ASSERT_NE(wide, notes.rows.end());
    EXPECT_EQ(wide->count, 2U);
    EXPECT_THAT(wide->lost, DoubleNear(0.25, 1e-12));
    EXPECT_THAT(wide->gained, DoubleNear(-0.2, 1e-12));
    EXPECT_EQ(explainLoss(facts, {}, "gained/reason/wide")->value, wide->gained);
    EXPECT_EQ(explainLoss(facts, {}, "noted/reason/wide")->inputs.size(), 1U);
    const auto count =
        explainLoss(facts, {}, lossNoteId({"reason", "wide", LossNoteNumber::Count}));
    EXPECT_EQ(count.value().value, 2);
    EXPECT_EQ(count->inputs.size(), 2U) << "what was lost and what was gained";
}

TEST(Losses, AChosenWayCostsWhatTheFastestTimedOneSaves) {
    auto race = lossRace(1, {lossRun({"A"}, {40})});
    strategy001 way;
    way.times = {3.5, 0, 3.1};
    way.options = {"Pivot", "Loop", "Direct"};
    race.athletes[0].strategies = {way, way};
    race.athletes[0].strategies[1].optionInt = 1;
    const FactStore facts = factsOf(race);
    EXPECT_NEAR(wayCost(facts, 0, 0).value(), 0.4, 1e-12);
    EXPECT_FALSE(wayCost(facts, 0, 1));
    EXPECT_EQ(explainLoss(facts, {}, "way/0/0")->inputs.size(), 2U);
}

TEST(Losses, AnIdOfNoNumberExplainsNothing) {
    const FactStore facts = factsOf(lossRace(1, {lossRun({"A"}, {40}), lossRun({"B"}, {41})}));
    for (const char* id :
         {"", "loss", "loss/1", "loss/1/winner", "loss/1/winner/2", "loss/2/winner/1",
          "loss/1/nobody/1", "loss/1/run:7/1", "loss/-1/winner/1", "loss/1/winner/1/1",
          "gap/1/winner/1", "way/0/0", "interest/0/0"})
        EXPECT_FALSE(explainLoss(facts, {}, id)) << id;
    EXPECT_TRUE(explainLoss(facts, {}, "loss/1//1"));
}

} // namespace kavela::test
