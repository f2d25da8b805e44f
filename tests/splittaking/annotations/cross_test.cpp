#include "splittaking/annotations/cross_results.h"

#include "splittaking/annotations/cross_heats.h"
#include "splittaking/annotations/cross_trials.h"
#include "splittaking/annotations/moments.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Names = std::vector<std::string>;

const crossinfodata030 Course{"Finals", "K1W", {1, 2, 4}, 2};

generaldata030 order(std::int64_t gate, Names names) {
    return {at(gate * 1000), gate, gate, std::move(names), ""};
}

rounddata030 heat(Names boats, std::vector<generaldata030> generals) {
    return {"", std::move(boats), std::move(generals), {}};
}

/// "A1 B2 C-": finish places in the order of the result.
std::string lineOf(const HeatResult& result) {
    std::string line;
    for (const HeatPlace& place : result.places)
        line += (line.empty() ? "" : " ") + place.athlete +
                (place.finish ? std::to_string(*place.finish) : "-") + (place.goesOn ? "+" : "");
    return line;
}

actiondata030 attack(const char* attacker, Names defenders, bool success, std::int64_t moment = 0) {
    return {{at(moment)}, attacker, std::move(defenders), success, "Left", "Gate 2", ""};
}

} // namespace

TEST(CrossTrials, AreTimedFromStartToFinish) {
    crossdata030 cross{Course, {}, {}};
    addTrial(cross, "Ana", "a.mov");
    ttdata030& trial = cross.timetrials[0];
    RunMarks marks = marksOf(trial);
    for (const std::int64_t moment : {2000, 12000, 52500})
        EXPECT_EQ(markNext(marks, {at(moment)}, 7), std::nullopt);
    applyMarks(marks, trial);
    EXPECT_EQ(trial.time, 50.5);
    EXPECT_EQ(marksOf(trial), marks);
    moveMark(marks, 2, {});
    applyMarks(marks, trial);
    EXPECT_EQ(trial.time, 10) << "a split not seen is no finish";
    applyMarks({}, trial);
    EXPECT_EQ(trial.time, 0);

    markUpstream(trial, Course, 4, GateMark::Entrance, at(100));
    markUpstream(trial, Course, 2, GateMark::Exit, at(50));
    EXPECT_EQ(trial.upstreams[0].gateNum, 2);
    EXPECT_THROW(markUpstream(trial, Course, 3, GateMark::Exit, at(1)), std::out_of_range);
    EXPECT_THROW(clearUpstreamMark(trial, 1, GateMark::Exit), std::out_of_range);
    setMark(trial.roll.cmtimes, GateMark::Entrance, at(0));
    setMark(trial.roll.cmtimes, GateMark::Exit, at(1750));
    EXPECT_EQ(timesOf(trial.roll.cmtimes).total, 1.75);
}

TEST(CrossTrials, RankTiesAndSeedHeats) {
    crossdata030 cross;
    for (const auto& [name, time] : std::initializer_list<std::pair<const char*, double>>{
             {"D", 53}, {"A", 50}, {"X", 0}, {"B", 51}, {"C", 51}, {"E", 54}}) {
        cross.timetrials.emplace_back().athlete = name;
        cross.timetrials.back().time = time;
    }
    rankTrials(cross);
    std::vector<std::int64_t> positions;
    for (const ttdata030& trial : cross.timetrials)
        positions.push_back(trial.pos);
    EXPECT_THAT(positions, ElementsAre(4, 1, 0, 2, 2, 5));
    EXPECT_THAT(seededHeats(cross, 8), ElementsAre(Names{"A", "D", "E"}, Names{"B", "C"}));
    EXPECT_THAT(seededHeats(cross, 4), ElementsAre(Names{"A", "B", "C", "D"}));
    EXPECT_THAT(seededHeats(cross, 0), IsEmpty());
    removeTrial(cross, 1);
    EXPECT_EQ(cross.timetrials[0].pos, 3);
    EXPECT_THROW(removeTrial(cross, 5), std::out_of_range);
}

TEST(CrossHeats, ComeToAResultWhateverIsMissing) {
    struct Row {
        const char* name;
        std::vector<generaldata030> generals;
        const char* result;
        bool isFinished;
        bool isComplete;
        std::vector<std::int64_t> without;
    };
    for (const Row& row : {
             Row{"nothing noted", {}, "A- B- C- D-", false, false, {1, 2, 4}},
             Row{"whole",
                 {order(1, {"A", "B", "C", "D"}), order(2, {"B", "A", "C", "D"}),
                  order(4, {"B", "D", "A", "C"})},
                 "B1 D2 A3 C4",
                 true,
                 true,
                 {}},
             Row{"no finish",
                 {order(1, {"A", "B", "C", "D"}), order(2, {"B", "A"})},
                 "B1 A2 C- D-",
                 false,
                 false,
                 {4}},
             Row{"boats not seen share the end",
                 {order(4, {"C", "A"})},
                 "C1 A2 B- D-",
                 true,
                 false,
                 {1, 2}},
             Row{"later gates come first in the file",
                 {order(4, {"D", "C", "B", "A"}), order(1, {"A", "B", "C", "D"})},
                 "D1 C2 B3 A4",
                 true,
                 true,
                 {2}},
             Row{"an empty finish",
                 {order(1, {"A", "B", "C", "D"}), order(4, {})},
                 "A1 B2 C3 D4",
                 false,
                 false,
                 {2, 4}},
             Row{"strangers and repetitions",
                 {order(4, {"Z", "B", "B", "A", "", "C", "D"})},
                 "B1 A2 C3 D4",
                 true,
                 true,
                 {1, 2}},
             Row{"the gate noted twice",
                 {order(4, {"A", "B", "C", "D"}), order(4, {"B", "A", "C", "D"})},
                 "B1 A2 C3 D4",
                 true,
                 true,
                 {1, 2}},
             Row{"a gate of another course",
                 {order(4, {"A", "B", "C", "D"}), order(77, {"D", "C", "B", "A"})},
                 "A1 B2 C3 D4",
                 true,
                 true,
                 {1, 2}},
         }) {
        const HeatResult result = resultOf(heat({"A", "B", "C", "D"}, row.generals), Course);
        EXPECT_EQ(lineOf(result), row.result) << row.name;
        EXPECT_EQ(result.isFinished, row.isFinished) << row.name;
        EXPECT_EQ(result.isComplete, row.isComplete) << row.name;
        EXPECT_THAT(result.gatesWithoutOrder, ElementsAreArray(row.without)) << row.name;
    }
}

TEST(CrossHeats, CountPlacesWonAndLost) {
    const HeatResult result =
        resultOf(heat({"A", "B", "C"},
                      {order(1, {"A", "B", "C"}), order(2, {"C", "A"}), order(4, {"A", "C", "B"})}),
                 Course);
    const HeatPlace& a = result.places[0];
    EXPECT_EQ(a.start, 1U);
    EXPECT_EQ(a.gained, 1U);
    EXPECT_EQ(a.lost, 1U);
    EXPECT_EQ(result.places[1].gained, 2U);
    EXPECT_EQ(result.places[2].lost, 1U) << "between the orders in which it was seen";
}

TEST(CrossRounds, TellWhoGoesOn) {
    const rounddata030 semi1 = heat({"A", "D", "E", "H"}, {order(4, {"E", "A", "D", "H"})});
    const rounddata030 semi2 = heat({"B", "C", "F", "G"}, {order(4, {"B", "G", "F", "C"})});
    const rounddata030 unfinished = heat({"B", "C", "F", "G"}, {order(2, {"B", "G", "F", "C"})});
    const rounddata030 small = heat({"D", "H", "F", "C"}, {order(4, {"D", "C", "F", "H"})});
    const rounddata030 final = heat({"E", "A", "B", "F"}, {order(4, {"B", "E", "F", "A"})});
    const auto linesOf = [](const std::vector<rounddata030>& heats) {
        std::vector<std::string> lines;
        for (const RoundResult& round : crossResults({Course, {}, heats})) {
            lines.emplace_back(round.isFinal ? "final:" : "round:");
            for (const HeatResult& result : round.heats)
                lines.back() += " [" + lineOf(result) + "]";
        }
        return lines;
    };
    EXPECT_THAT(linesOf({}), IsEmpty());
    EXPECT_THAT(linesOf({semi1, semi2}), ElementsAre("round: [E1+ A2+ D3 H4] [B1+ G2+ F3 C4]"));
    EXPECT_THAT(linesOf({semi1, unfinished}), ElementsAre("round: [E1+ A2+ D3 H4] [B1 G2 F3 C4]"));
    EXPECT_THAT(linesOf({semi1, semi2, final}),
                ElementsAre("round: [E1+ A2+ D3 H4] [B1+ G2 F3+ C4]", "final: [B1 E2 F3 A4]"))
        << "the jury may decide otherwise";
    EXPECT_THAT(
        linesOf({semi1, heat({"B", "C", "G"}, {}), small, heat({"E", "A", "B", "G"}, {})}).back(),
        "final: [D1 C2 F3 H4] [E- A- B- G-]");
}

TEST(CrossHeats, AreEditedWithinTheHeat) {
    crossdata030 cross{Course, {}, {}};
    addHeat(cross, "semi.mov", {"A", "B", "C"});
    for (const Names& bad : {Names{}, Names{"A", "A"}, Names{"A", "B", "C", "D", "E"}})
        EXPECT_THROW(addHeat(cross, "", bad), std::invalid_argument);
    rounddata030& semi = cross.eliphase[0];
    setOrder(semi, Course, 4, {"A", "B"}, at(9));
    setOrder(semi, Course, 1, {"B", "A", "C"}, at(3));
    setOrder(semi, Course, 4, {"A"}, at(10));
    ASSERT_EQ(semi.generals.size(), 2U);
    EXPECT_EQ(semi.generals[1].gatenum, 3) << "the third gate of the course";
    EXPECT_EQ(semi.generals[1].time, at(10));
    EXPECT_THAT(likelyOrder(semi, Course, 2), ElementsAre("B", "A", "C"));
    EXPECT_THAT(likelyOrder(semi, Course, 1), ElementsAre("A", "B", "C"));

    EXPECT_EQ(addAction(semi, attack("A", {"B"}, true, 500)), 0U);
    EXPECT_EQ(addAction(semi, attack("C", {"A", "B"}, false, 100)), 0U);
    EXPECT_EQ(semi.actions[0].attacker, "C");
    EXPECT_EQ(changeAction(semi, 0, attack("C", {"A"}, false, 900)), 1U);
    renameBoat(semi, 0, "Ana");
    const std::string before = jsonOf(semi);
    EXPECT_EQ(semi.generals[0].order, (Names{"B", "Ana", "C"}));
    EXPECT_EQ(semi.actions[1].defenders, Names{"Ana"});

    for (const Names& bad : {Names{"Z"}, Names{"B", "B"}, Names{""}})
        EXPECT_THROW(setOrder(semi, Course, 2, bad, at(1)), std::invalid_argument);
    EXPECT_THROW(setOrder(semi, Course, 3, {"B"}, at(1)), std::out_of_range);
    for (const actiondata030& bad : {attack("Z", {}, true), attack("B", {"B"}, true),
                                     attack("B", {"C", "C"}, true), attack("", {"C"}, true)})
        EXPECT_THROW(changeAction(semi, 0, bad), std::invalid_argument);
    EXPECT_THROW(renameBoat(semi, 1, "C"), std::invalid_argument);
    EXPECT_THROW(removeAction(semi, 2), std::out_of_range);
    EXPECT_THROW(moveOrder(semi, 2, at(1)), std::out_of_range);
    EXPECT_EQ(jsonOf(semi), before);
    EXPECT_THAT(faultsOf(semi, Course), IsEmpty());
    semi.generals[0].gate = 9;
    semi.actions[0].attacker = "Z";
    EXPECT_THAT(faultsOf(semi, Course), ElementsAre("Gate 9: it is not on the cross course.",
                                                    "Attack 1: Z is not in this heat."));
}

TEST(CrossAttacks, CountOverHeats) {
    rounddata030 first = heat({"A", "B", "C"}, {});
    first.actions = {attack("B", {"A"}, true), attack("B", {"A", "C"}, false),
                     attack("Z", {"A"}, false)};
    first.actions[2].side = "Right";
    const rounddata030 heats[] = {first, heat({"D", "B"}, {})};
    const auto records = attackRecords(heats);
    ASSERT_EQ(records.size(), 4U);
    EXPECT_EQ(records[0].athlete, "A");
    EXPECT_EQ(records[0].attackRate(), std::nullopt);
    EXPECT_EQ(records[0].defences, 3U);
    EXPECT_EQ(records[0].held, 2U);
    EXPECT_EQ(records[1].attackRate(), 0.5);
    EXPECT_EQ(records[3].athlete, "Z");
    const auto places = attackPlaces(heats);
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(places[0].side, "Left");
    EXPECT_EQ(places[0].successes, 1U);
}

} // namespace kavela::test
