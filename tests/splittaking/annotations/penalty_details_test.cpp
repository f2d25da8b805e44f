#include "splittaking/annotations/penalty_details.h"

#include "splittaking/annotations/moments.h"

#include <gmock/gmock.h>

#include <functional>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t Touch = 0;
constexpr std::int64_t Missed = 1;
constexpr std::int64_t Gates = 4;

PenaltyDetail detail(std::int64_t gate, std::int64_t kind) {
    PenaltyDetail penalty;
    penalty.gate = gate;
    penalty.penkind = kind;
    return penalty;
}

/// As an upgraded file has it: younger lists are empty, one is too short, another too long.
athletedata031 unevenRun() {
    athletedata031 run;
    pendata030 record;
    record.gate = {1, 3, 4};
    record.gatekind = {0, 1, 0};
    record.penkind = {Touch, Missed, Touch};
    record.polekind = {2};
    record.penway = {5, 6, 7, 8};
    run.sectioninfo.pendetails = {record};
    run.sectioninfo.pens = {2, 0, 50, 2};
    run.sectioninfo.totalpen = 54;
    run.totaltouches = 2;
    run.totalfifties = 1;
    return run;
}

} // namespace

TEST(PenaltyDetails, KeepTheSecondsOfTheGateInStep) {
    athletedata031 run;
    const auto pens = [&] { return run.sectioninfo.pens; };
    const PenaltyHandle touch = addPenalty(run, detail(2, Touch), Gates);
    const PenaltyHandle missed = addPenalty(run, detail(2, 4), Gates);
    EXPECT_THAT(pens(), ElementsAre(0, 50, 0, 0)) << "the worst counts";
    changePenalty(run, missed, PenaltyField::Gate, 3, Gates);
    EXPECT_THAT(pens(), ElementsAre(0, 2, 50, 0));
    changePenalty(run, missed, PenaltyField::Kind, 77, Gates);
    EXPECT_THAT(pens(), ElementsAre(0, 2, 50, 0)) << "a kind of a later release costs what it did";
    changePenalty(run, missed, PenaltyField::Kind, Touch, Gates);
    EXPECT_EQ(run.sectioninfo.totalpen, 4);
    EXPECT_EQ(run.totaltouches, 2);
    removePenalty(run, touch, Gates);
    removePenalty(run, {0, 0}, Gates);
    EXPECT_THAT(pens(), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(run.sectioninfo.pendetails, IsEmpty());
    for (const std::int64_t gate : {0, 5, -1})
        EXPECT_THROW(addPenalty(run, detail(gate, Touch), Gates), std::out_of_range);
    EXPECT_THAT(run.sectioninfo.pendetails, IsEmpty()) << "a refused penalty leaves nothing";
}

TEST(PenaltyDetails, FollowThePenaltyOfTheGate) {
    athletedata031 run = unevenRun();
    setPenaltyAndDetails(run, 3, 2, Gates);
    setPenaltyAndDetails(run, 4, 50, Gates);
    setPenaltyAndDetails(run, 2, 2, Gates);
    EXPECT_THAT(run.sectioninfo.pendetails[0].penkind, ElementsAre(Touch, Touch, Missed));
    EXPECT_THAT(run.sectioninfo.pens, ElementsAre(2, 2, 2, 50));
    EXPECT_THAT(gatesOutOfStep(run, Gates), IsEmpty());
    setPenaltyAndDetails(run, 1, 0, Gates);
    EXPECT_THAT(run.sectioninfo.pendetails[0].gate, ElementsAre(3, 4));
    EXPECT_THAT(run.sectioninfo.pendetails[0].penway, ElementsAre(6, 7, 8));
    run.sectioninfo.pens = {2, 0, 0, 50};
    EXPECT_THAT(gatesOutOfStep(run, Gates), ElementsAre(3));
}

TEST(PenaltyDetails, DoNotPileUpWhenAMissedGateBecomesATouch) {
    athletedata031 run;
    PenaltyDetail otherPole = detail(2, Missed);
    otherPole.polekind = 1;
    for (const PenaltyDetail& each :
         {detail(2, Touch), detail(2, Missed), otherPole, detail(3, Touch)})
        addPenalty(run, each, Gates);
    setPenaltyAndDetails(run, 2, 2, Gates);
    EXPECT_THAT(run.sectioninfo.pendetails.at(0).gate, ElementsAre(2, 2, 3));
    EXPECT_THAT(run.sectioninfo.pendetails[0].polekind, ElementsAre(0, 1, 0));
    EXPECT_THAT(run.sectioninfo.pens, ElementsAre(0, 2, 2, 0));
}

TEST(PenaltyDetails, LeaveUnevenListsAsTheyAreElsewhere) {
    struct Row {
        const char* name;
        std::function<void(athletedata031&)> edit;
        std::function<void(athletedata031&)> expected;
    };
    const auto record = [](athletedata031& run) -> pendata030& {
        return run.sectioninfo.pendetails[0];
    };
    const Row rows[] = {
        {"a value that is there",
         [](auto& run) {
             changePenalty(run, {0, 1}, PenaltyField::GateKind, 9, Gates);
         },
         [&](auto& run) { record(run).gatekind[1] = 9; }},
        {"a list that is too short",
         [](auto& run) {
             changePenalty(run, {0, 2}, PenaltyField::Pole, 1, Gates);
         },
         [&](auto& run) {
             record(run).polekind = {2, 0, 1};
         }},
        {"an empty list",
         [](auto& run) {
             changePenalty(run, {0, 0}, PenaltyField::Eye, 3, Gates);
         },
         [&](auto& run) { record(run).eye = {3}; }},
        {"an entry without a gate",
         [](auto& run) {
             removePenalty(run, {0, 3}, Gates);
         },
         [&](auto& run) { record(run).penway.pop_back(); }},
        {"removal",
         [](auto& run) {
             removePenalty(run, {0, 1}, Gates);
         },
         [&](auto& run) {
             record(run).gate = {1, 4};
             record(run).gatekind = {0, 0};
             record(run).penkind = {Touch, Touch};
             record(run).penway = {5, 7, 8};
             run.sectioninfo.pens = {2, 0, 0, 2};
             run.sectioninfo.totalpen = 4;
             run.totalfifties = 0;
         }},
    };
    for (const Row& row : rows) {
        athletedata031 run = unevenRun();
        athletedata031 expected = run;
        row.edit(run);
        row.expected(expected);
        EXPECT_EQ(jsonOf(run), jsonOf(expected)) << row.name;
    }
}

TEST(PenaltyDetails, ReadAndAddBehindTheLongestList) {
    athletedata031 run = unevenRun();
    const auto entries = penaltyEntries(run);
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[3][PenaltyField::Gate], std::nullopt);
    EXPECT_EQ(entries[3][PenaltyField::Way], 8);
    EXPECT_EQ(entries[0][PenaltyField::Eye], std::nullopt);
    EXPECT_EQ(addPenalty(run, detail(2, Touch), Gates), (PenaltyHandle{0, 4}));
    EXPECT_THAT(run.sectioninfo.pendetails[0].gate, ElementsAre(1, 3, 4, 0, 2));
    EXPECT_THAT(run.sectioninfo.pendetails[0].penway, ElementsAre(5, 6, 7, 8, 0));

    const std::string before = jsonOf(run);
    for (const PenaltyHandle handle : {PenaltyHandle{0, 5}, PenaltyHandle{1, 0}}) {
        EXPECT_THROW(changePenalty(run, handle, PenaltyField::Way, 1, Gates), std::out_of_range);
        EXPECT_THROW(removePenalty(run, handle, Gates), std::out_of_range);
    }
    EXPECT_THROW(changePenalty(run, {0, 0}, PenaltyField::Gate, 5, Gates), std::out_of_range);
    EXPECT_EQ(jsonOf(run), before);
}

} // namespace kavela::test
