#include "analysis/gate_penalties.h"

#include "analysis/races.h"

#include <gmock/gmock.h>

namespace kavela::test {

TEST(GatePenalties, CountsTouchesAndMissedGatesWhereTheyAreKnownByGate) {
    splittakerdata031 race = raceOf(2, {runOf({1, 2}), runOf({1, 2}), runOf({1, 2}), runOf({})});
    race.info.gates = 3;
    race.info.upGates = {2, 9};
    race.athletes[0].sectioninfo.pens = {2, 50, 0};
    race.athletes[1].sectioninfo.pens = {2, 7, -2};
    race.athletes[2].sectioninfo.pens = {50, 50}; // by section: nobody knows at which gate
    const CoursePenalties course = coursePenalties(makeRaceSet(race, "a.kvx"));
    EXPECT_EQ(course.countedRuns, 2U);
    ASSERT_EQ(course.gates.size(), 3U);
    EXPECT_EQ(course.gates[0].touches, 2);
    EXPECT_EQ(course.gates[0].missed, 0);
    EXPECT_EQ(course.gates[1].touches, 0);
    EXPECT_EQ(course.gates[1].missed, 1);
    EXPECT_EQ(course.gates[2].touches + course.gates[2].missed, 0);
    EXPECT_FALSE(course.gates[0].isUpstream);
    EXPECT_TRUE(course.gates[1].isUpstream);
}

TEST(GatePenalties, AreUnknownWithoutARunThatHasThemByGate) {
    for (const std::int64_t gates : {0L, 3L, -1L, INT64_MAX}) {
        splittakerdata031 race = raceOf(2, {runOf({1, 2}), runOf({})});
        race.info.gates = gates;
        race.athletes[0].sectioninfo.pens = {2, 50};
        EXPECT_TRUE(coursePenalties(makeRaceSet(race, "a.kvx")).gates.empty()) << gates;
    }
}

} // namespace kavela::test
