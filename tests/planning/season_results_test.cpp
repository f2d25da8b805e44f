#include "planning/season_results.h"

#include <gmock/gmock.h>

namespace kavela::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(SeasonResults, RankingRowsFillUpOnlyWhatIsWritten) {
    icfdataplanning_v1 ranking{{1, 2, 3}, {80.5}, {}};
    ASSERT_THAT(rankingEntries(ranking), SizeIs(3));
    EXPECT_EQ(rankingEntries(ranking)[1].release, 2);
    EXPECT_FALSE(rankingEntries(ranking)[1].points);
    setRankingEntry(ranking, 1, {{}, 70.5, {}});
    EXPECT_THAT(ranking.points, ElementsAre(80.5, 70.5));
    EXPECT_THAT(ranking.pos, IsEmpty());
    setRankingEntry(ranking, 3, {4, 60, 9});
    EXPECT_THAT(ranking.release, ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(ranking.points, ElementsAre(80.5, 70.5, 0, 60));
    EXPECT_THAT(ranking.pos, ElementsAre(0, 0, 0, 9));
    icfdataplanning_v1 uneven{{1, 2}, {5}, {}};
    removeRankingEntry(uneven, 1);
    removeRankingEntry(uneven, 7);
    EXPECT_THAT(uneven.release, ElementsAre(1));
    EXPECT_THAT(uneven.points, ElementsAre(5));
}

TEST(SeasonResults, RacesKnowWhatTheirArraysReach) {
    racedataplanning_v3 races;
    races.event = {"Cup", "Open", "Night"};
    races.time = {100, 0, 1e308};
    races.timePen = {2};
    races.bestTime = {96, 90, 1e-308, 5};
    races.bestTimePen = {4};
    races.pos = {0, 3};
    const std::vector<SeasonRace> rows = seasonRaces(races);
    ASSERT_THAT(rows, SizeIs(3));
    ASSERT_TRUE(rows[0].percentBehind);
    EXPECT_DOUBLE_EQ(*rows[0].percentBehind, 2);
    EXPECT_FALSE(rows[0].position) << "0 is none";
    EXPECT_FALSE(rows[0].date);
    EXPECT_FALSE(rows[1].time);
    EXPECT_FALSE(rows[1].percentBehind);
    EXPECT_FALSE(rows[2].percentBehind) << "no finite number";
    EXPECT_FALSE(rows[2].penalty);
}

} // namespace kavela::test
