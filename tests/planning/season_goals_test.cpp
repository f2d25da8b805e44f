#include "planning/season_goals.h"

#include "common/json_encode.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using Kind = GoalPlace::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

/// Lists of which none is as long as another.
yearsplannings_v6 unevenSeason() {
    yearsplannings_v6 season;
    season.seasongoalgroups = {"Results", "Technique"};
    season.seasongoals = {{"Final"}};
    season.seasonsubgoals = {{"a", "b", "c"}, {"d"}, {"e", "f"}};
    season.seasonsubgoalsstatus = {{"Done"}, {"odd word", "of nobody"}};
    return season;
}

std::string encoded(const yearsplannings_v6& season) {
    return encode(season);
}

} // namespace

TEST(SeasonGoals, ReadListsOfUnequalLength) {
    const yearsplannings_v6 season = unevenSeason();
    EXPECT_EQ(goalGroupCount(season), 3U);
    EXPECT_EQ(goalGroupName(season, 2), "");
    EXPECT_THAT(goalsOf(season, 2), IsEmpty());
    EXPECT_EQ(subgoalStatus(season, 0, 0), "Done");
    EXPECT_EQ(subgoalStatus(season, 0, 2), "");
    EXPECT_EQ(subgoalStatus(season, 2, 1), "");
    EXPECT_EQ(goalProgress(season, 0).reached, 1U);
    EXPECT_EQ(goalProgress(season, 0).count, 3U);
    EXPECT_EQ(goalStatus("On The Way"), 1);
    EXPECT_EQ(goalStatus("odd word"), -1);
    EXPECT_FALSE(hasGoal(season, {Kind::Goal, 2, 0}));
    EXPECT_FALSE(hasGoal(season, {Kind::Subgoal, 7, 0}));
}

TEST(SeasonGoals, AStatusFillsUpItsGroupAlone) {
    yearsplannings_v6 season = unevenSeason();
    setGoalStatus(season, 0, 2, "reached");
    EXPECT_THAT(season.seasonsubgoalsstatus[0], ElementsAre("Done", "", "reached"));
    EXPECT_THAT(season.seasonsubgoalsstatus[1], ElementsAre("odd word", "of nobody"));
    EXPECT_EQ(season.seasonsubgoalsstatus.size(), 2U);
    setGoalStatus(season, 2, 0, "open");
    EXPECT_THAT(season.seasonsubgoalsstatus[2], ElementsAre("open"));
    EXPECT_EQ(season.seasongoals.size(), 1U);
    EXPECT_EQ(season.seasongoalgroups.size(), 2U);
}

TEST(SeasonGoals, WhatIsNotThereIsLeftAlone) {
    yearsplannings_v6 season = unevenSeason();
    const std::string before = encoded(season);
    for (const GoalPlace place : {GoalPlace{Kind::Group, 3, 0}, GoalPlace{Kind::Goal, 0, 1},
                                  GoalPlace{Kind::Goal, 1, 0}, GoalPlace{Kind::Subgoal, 9, 9}}) {
        renameGoal(season, place, "x");
        removeGoal(season, place);
        EXPECT_EQ(moveGoal(season, place, true), place);
        EXPECT_EQ(moveGoal(season, place, false), place);
    }
    setGoalStatus(season, 0, 3, "open");
    setGoalStatus(season, 3, 0, "open");
    EXPECT_EQ(moveGoal(season, {Kind::Subgoal, 0, 0}, true).index, 0U) << "the first, up";
    EXPECT_EQ(moveGoal(season, {Kind::Subgoal, 0, 2}, false).index, 2U) << "the last, down";
    EXPECT_EQ(encoded(season), before);
}

TEST(SeasonGoals, ANewSubgoalTakesNobodysStatus) {
    yearsplannings_v6 season = unevenSeason();
    addGoal(season, Kind::Subgoal, 1, "new");
    EXPECT_THAT(season.seasonsubgoals[1], ElementsAre("d", "new"));
    EXPECT_THAT(season.seasonsubgoalsstatus[1], ElementsAre("odd word", "open", "of nobody"));
    addGoal(season, Kind::Subgoal, 0, "new");
    EXPECT_THAT(season.seasonsubgoalsstatus[0], ElementsAre("Done")) << "some are missing";
    const GoalPlace group = addGoal(season, Kind::Group, 0, "Physical");
    EXPECT_EQ(group.group, 3U);
    EXPECT_THAT(season.seasongoalgroups, ElementsAre("Results", "Technique", "", "Physical"));
    EXPECT_EQ(addGoal(season, Kind::Subgoal, 3, "first").index, 0U);
    EXPECT_EQ(subgoalStatus(season, 3, 0), "open");
}

TEST(SeasonGoals, StatusesAndGroupsMoveAndGoWithWhatTheyBelongTo) {
    yearsplannings_v6 season = unevenSeason();
    EXPECT_EQ(moveGoal(season, {Kind::Subgoal, 0, 0}, false).index, 1U);
    EXPECT_THAT(season.seasonsubgoals[0], ElementsAre("b", "a", "c"));
    EXPECT_EQ(subgoalStatus(season, 0, 1), "Done");
    EXPECT_EQ(subgoalStatus(season, 0, 0), "");
    EXPECT_EQ(moveGoal(season, {Kind::Group, 0, 0}, false).group, 1U);
    EXPECT_THAT(season.seasongoalgroups, ElementsAre("Technique", "Results"));
    EXPECT_THAT(goalsOf(season, 1), ElementsAre("Final"));
    EXPECT_EQ(subgoalStatus(season, 0, 0), "odd word");
    EXPECT_EQ(subgoalStatus(season, 1, 1), "Done");
    removeGoal(season, {Kind::Subgoal, 1, 0});
    EXPECT_EQ(subgoalStatus(season, 1, 0), "Done") << "one with a status moved up";
    removeGoal(season, {Kind::Group, 0, 0});
    EXPECT_THAT(season.seasongoalgroups, ElementsAre("Results"));
    EXPECT_EQ(subgoalStatus(season, 0, 0), "Done");
    EXPECT_THAT(subgoalsOf(season, 1), ElementsAre("e", "f"));
}

} // namespace kavela::test
